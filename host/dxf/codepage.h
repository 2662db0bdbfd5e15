// Converts texts of a DXF file to wide text and back.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/dxf/byteconverter.h"
#include "host/dxf/release.h"

namespace host::dxf
{
// From R2007 (AC1021) on the bytes are UTF-8, whatever the header says. Before R2007 they are in
// the header's code page. A file that states no code page is read as ANSI_1252.
//
// An object must not be used by two threads at once.
class CodePage
{
public:
    // Returns true if the code page is known. The arguments are the header's $ACADVER and
    // $DWGCODEPAGE.
    static bool isKnown(const Release& release, std::string_view codePageName);
    // Throws an Error for an unknown code page. Every TagFile has a known one.
    CodePage(const Release& release, std::string_view codePageName);

    // Decodes the bytes. A character takes one wchar_t, or two where it does not fit into one.
    // "\U+XXXX", "\M+nXXXX" and "^J" become the characters that they denote, and `lineFeedInText`
    // becomes a line feed.
    //
    // A byte without a meaning in the code page becomes U+DC00 plus the byte. No other input gives
    // such a character, and `encode` turns it back into the byte, so a name that contains the byte
    // can be written again.
    std::wstring decode(std::string_view bytes) const;

    // Encodes the text. A surrogate pair counts as one character. A character that the code page
    // lacks is written as "\U+XXXX" and a control character with a caret, so the result is always
    // one line.
    std::string encode(std::wstring_view text) const;

private:
    std::u32string converted(std::string_view bytes) const;
    void append(std::string& bytes, char32_t character) const;
    void appendConverted(std::string& bytes, char32_t character) const;

    std::unique_ptr<ByteConverter> m_converter;
};
}  // namespace host::dxf
