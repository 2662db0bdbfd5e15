// Writes tags without an allocation for each tag. A drawing may have two million lines.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/dxf/schema/code.h"
#include "host/dxf/tag.h"

namespace host::dxf
{
// Returns the shortest decimal that reads back as the same number. It always has a point or an
// exponent: "100.0", "-0.5", "1e+20". Minus zero is written as 0.0. Throws std::domain_error if the
// number is not finite.
std::string realText(double value);

// The bytes of a record with six numbers, such as a line, except its handle and its numbers. Such
// records are written a million times, so their common bytes are composed only once.
struct RecordForm
{
    struct Gap
    {
        Gap() = default;
        explicit Gap(std::string_view bytes);  // at most 15 bytes

        unsigned char length;
        char text[15];
    };

    std::string head;    // up to the handle
    bool hasHandle;      // if false, all common bytes are in `common`
    std::string common;  // from the handle to the first number
    Gap gaps[5];         // between the numbers
    std::string tail;
};

class TagWriter
{
public:
    // The writer passes on about this many bytes at a time. A larger buffer would no longer be in
    // the processor's cache when the system copies it.
    static constexpr std::size_t bufferSize = 1 << 18;
    using Drain = std::function<void(std::string_view)>;  // may throw

    // Writes tags in the given style to `drain`.
    TagWriter(Drain drain, const TagStyle& style);
    TagWriter(const TagWriter&) = delete;
    TagWriter& operator=(const TagWriter&) = delete;

    // Write one tag. Group codes are 0 to 1071.
    void text(Code code, std::string_view encoded);  // one line in the file's code page
    void integer(Code code, std::int64_t value);
    void handle(Code code, std::uint64_t value);          // in hexadecimal capitals
    void real(Code code, double value);                   // written as by realText
    void point(Code code, double x, double y, double z);  // the code, its Y and its Z
    void point(Code code, double x, double y);

    void raw(std::string_view bytes);  // written unchanged
    // Writes a record: the bytes of the form, the handle and the numbers.
    void record(const RecordForm& form, std::uint64_t handle, const double (&numbers)[6]);

    // Write the two parts of a tag separately, for the parts of a form.
    void codeLine(Code code);
    void lineEnd();

    // Drains the remaining bytes. Call it at the end: the destructor discards bytes that were not
    // flushed.
    void flush();

private:
    struct CodeLine
    {
        char text[8];
        unsigned char length;
        unsigned char integerWidth;
    };

    // A number and its text as written before. Whole sheets of lines have only a few thousand
    // different numbers.
    struct RealText
    {
        std::uint64_t bits = 0;
        unsigned char length = 0;
        char text[23] = {};
    };
    static constexpr unsigned realTextBits = 13;

    char* begin(Code code);
    void end(char* at);
    char* appendKnownReal(char* at, double value);
    char* appendNewReal(char* at, double value, RealText& known);
    void copy(std::string_view bytes);
    void copyLong(std::string_view bytes);

    Drain m_drain;
    char m_newline[2] = {};
    std::size_t m_newlineLength;
    std::array<CodeLine, highestCode + 1> m_codes;
    std::unique_ptr<char[]> m_buffer;
    char* m_at;
    // Beyond this, only the rest of the current tag is added before the buffer is drained.
    const char* m_full;
    std::vector<RealText> m_realTexts;
};
}  // namespace host::dxf
