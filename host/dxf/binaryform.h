// Converts binary DXF to the tags of ASCII DXF and back without loss.
//
// A string keeps its bytes, whatever the code page is. A number is written as the shortest decimal
// that reads back as the same number. A binary chunk becomes hexadecimal digits. A line feed would
// end a tag of the ASCII form, so `lineFeedInText` replaces a line feed within a text.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace host::dxf
{
// Returns true if the bytes begin with the mark of binary DXF.
bool isBinary(std::string_view bytes);

struct AsciiForm
{
    std::string text;  // The tags, two lines each. What follows EOF is unchanged.
    // The offset of each tag in the binary file, and the end of the last one.
    std::vector<std::size_t> offsets;
    int codeSize;  // bytes of a group code: 1 up to R12, 2 in later releases
};

// Converts a binary file to its ASCII form. Throws an Error, "NAME: offset N: expected X, found Y",
// if the file does not consist of whole tags.
AsciiForm asciiForm(std::string_view binary, const std::string& name);

// Converts ASCII tags, which may arrive in pieces of any length, to their binary form.
class BinaryEncoder
{
public:
    using Drain = std::function<void(std::string_view)>;

    // Writes to `drain`. `codeSize` is the number of bytes of a group code, 1 or 2.
    BinaryEncoder(Drain drain, int codeSize);

    // Encodes the next piece. Throws std::domain_error for a value that its group code cannot hold.
    void take(std::string_view ascii);
    void finish();  // drains the remaining bytes

private:
    void encodeTag(std::string_view code, std::string_view value);
    void putText(std::string_view value);
    void putCode(int code);
    template <class Number>
    void put(Number number);

    Drain m_drain;
    int m_codeSize;
    std::string m_pending;  // the ASCII tag that is still incomplete
    std::string m_binary;
    bool m_ended = false;  // set after EOF, because no tags follow it
};
}  // namespace host::dxf
