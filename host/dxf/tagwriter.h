// Writes tags without an allocation for each tag. A drawing may have two million lines.
#pragma once

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
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

// Bytes that many records share, with room behind them, so that they can be copied in whole blocks.
class SharedBytes
{
public:
    // More bytes than this are never written beyond the end.
    static constexpr std::size_t blockSize = 64;

    explicit SharedBytes(std::string_view bytes = {});

    std::size_t length() const { return m_length; }
    // Writes the bytes and returns their end. Writes up to `blockSize` bytes more.
    char* copyTo(char* at) const
    {
        const char* const from = m_padded.data();
        std::memcpy(at, from, firstBlock);
        for (std::size_t done = firstBlock; done < m_length; done += blockSize)
        {
            std::memcpy(at + done, from + done, blockSize);
        }
        return at + m_length;
    }

private:
    static constexpr std::size_t firstBlock = 16;  // most are no longer

    std::string m_padded;
    std::size_t m_length;
};

// The bytes of a record with six numbers, such as a line, except its handle and its numbers. Such
// records are written a million times, so their common bytes are composed only once.
class RecordForm
{
public:
    struct Gap
    {
        unsigned number;    // one of the six
        SharedBytes after;  // what follows it
    };

    // `head` goes up to the handle; without `hasHandle` it is empty. `common` goes up to the first
    // number. Numbers that are the same in all records may be among the bytes.
    RecordForm(std::string_view head, bool hasHandle, std::string_view common,
               std::vector<Gap> gaps);

private:
    friend class TagWriter;

    SharedBytes m_head;
    bool m_hasHandle;
    SharedBytes m_common;
    std::vector<Gap> m_gaps;
    std::size_t m_room;  // for a whole record
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
        std::uint64_t bits;
        char text[23];
        unsigned char length;
    };
    struct Freeing
    {
        void operator()(RealText* texts) const { std::free(texts); }
    };
    static constexpr unsigned realTextBits = 13;

    void makeRoom(std::size_t size);
    void setCode(int code);
    char* begin(Code code);
    void end(char* at);
    char* appendHandle(char* at, std::uint64_t handle);
    char* appendNewHandle(char* at, std::uint64_t handle);
    char* appendKnownReal(char* at, double value);
    char* appendNewReal(char* at, double value, RealText& known);
    void copy(std::string_view bytes);
    void copyLong(std::string_view bytes);

    Drain m_drain;
    int m_codeWidth;
    bool m_padIntegers;
    char m_newline[2] = {};
    std::size_t m_newlineLength;
    std::array<CodeLine, highestCode + 1> m_codes{};  // made when they are first used
    std::unique_ptr<char[]> m_buffer;
    char* m_at;
    // Beyond this, only the rest of the current tag is added before the buffer is drained.
    const char* m_full;
    // Zeros until they are used; most writers write a few numbers and touch little of the table.
    std::unique_ptr<RealText[], Freeing> m_realTexts;

    // The handle written last and its text. Handles mostly count up, which mostly changes the last
    // digit alone.
    std::uint64_t m_handle = 0;
    char m_handleText[16] = {'0'};
    unsigned m_handleLength = 1;
};
}  // namespace host::dxf
