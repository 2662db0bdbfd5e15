// Binary DXF as the tags of an ASCII one, and back, with nothing lost on either way.
//
// Strings stay in the bytes they have, whatever the code page; numbers are written in the shortest
// decimals that read back as the same; binary chunks become hexadecimal digits. Where a text has a
// line feed, the tags of the ASCII form, which end with one, have `lineFeedInText`.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace host::dxf
{
bool isBinary(std::string_view bytes);

struct AsciiForm
{
    std::string text;                  // a tag has two lines; what follows EOF is as it was
    std::vector<std::size_t> offsets;  // of each tag in the binary file, and after the last
    int codeSize;                      // bytes of a group code: 1 up to R12, 2 later
};

// Throws an Error, "NAME: offset N: expected X, found Y", for anything but whole tags.
AsciiForm asciiForm(std::string_view binary, const std::string& name);

// Turns tags that come in pieces of any length into their binary form.
class BinaryEncoder
{
public:
    using Drain = std::function<void(std::string_view)>;

    BinaryEncoder(Drain drain, int codeSize);

    // Throws std::domain_error for a value that its group code cannot hold.
    void take(std::string_view ascii);
    void finish();  // drains what is left

private:
    void encodeTag(std::string_view code, std::string_view value);
    void putText(std::string_view value);
    void putCode(int code);
    template <class Number>
    void put(Number number);

    Drain m_drain;
    int m_codeSize;
    std::string m_pending;  // the ASCII tag that is not whole yet
    std::string m_binary;
    bool m_ended = false;  // after EOF, behind which there are no tags
};
}  // namespace host::dxf
