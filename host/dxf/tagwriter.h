// Writes tags, two million lines a drawing and no allocation a tag.
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
// The shortest decimal that reads back as the same number, always with a point or an exponent:
// "100.0", "-0.5", "1e+20". -0 is written as 0.0. Throws std::domain_error if it is not finite.
std::string realText(double value);

// A kind of record with six numbers that is written a million times: all of it but its handle and
// its numbers, as bytes.
struct RecordForm
{
    struct Gap
    {
        Gap() = default;
        explicit Gap(std::string_view bytes);  // 15 at most

        unsigned char length;
        char text[15];
    };

    std::string head;    // up to the handle
    bool hasHandle;      // or none: all is in `common`
    std::string common;  // from there to the first number
    Gap gaps[5];         // between the numbers
    std::string tail;
};

class TagWriter
{
public:
    // Bytes leave about so many at a time. More of them would no longer be near the processor when
    // the system takes them over.
    static constexpr std::size_t bufferSize = 1 << 18;
    using Drain = std::function<void(std::string_view)>;  // may throw

    TagWriter(Drain drain, const TagStyle& style);
    TagWriter(const TagWriter&) = delete;
    TagWriter& operator=(const TagWriter&) = delete;

    // Group codes are 0 to 1071.
    void text(Code code, std::string_view encoded);  // one line in the file's code page
    void integer(Code code, std::int64_t value);
    void handle(Code code, std::uint64_t value);          // hexadecimal capitals
    void real(Code code, double value);                   // as realText
    void point(Code code, double x, double y, double z);  // code, its Y and its Z
    void point(Code code, double x, double y);

    void raw(std::string_view bytes);  // as they are
    void record(const RecordForm& form, std::uint64_t handle, const double (&numbers)[6]);

    // A tag in two halves, for the parts of a form.
    void codeLine(Code code);
    void lineEnd();

    // To be called at the end; a writer that goes out of scope before has lost its last bytes.
    void flush();

private:
    struct CodeLine
    {
        char text[8];
        unsigned char length;
        unsigned char integerWidth;
    };

    // A number as it was written before; whole sheets of lines have a few thousand of them.
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
    const char* m_full;  // further bytes are for the next filling, but for the rest of a tag
    std::vector<RealText> m_realTexts;
};
}  // namespace host::dxf
