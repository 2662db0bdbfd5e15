// Texts of a DXF file as wide text, and back.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/dxf/byteconverter.h"
#include "host/dxf/release.h"

namespace host::dxf
{
// From R2007 (AC1021) on the bytes are UTF-8 whatever the header says; before that they are in the
// header's code page, and a file that states none is read as ANSI_1252.
//
// Not for two threads at once.
class CodePage
{
public:
    // Of the header: $ACADVER and $DWGCODEPAGE. A TagFile has none that are not known; for such the
    // constructor throws an Error.
    static bool isKnown(const Release& release, std::string_view codePageName);
    CodePage(const Release& release, std::string_view codePageName);

    // One wchar_t a character, two where it does not fit into one. "\U+XXXX", "\M+nXXXX" and "^J"
    // are taken for the characters they stand for, `lineFeedInText` for a line feed.
    //
    // A byte that means nothing in the code page becomes U+DC00 plus the byte, which stands for
    // nothing else and which `encode` turns back: a name with such a byte can be written again.
    std::wstring decode(std::string_view bytes) const;

    // A surrogate pair counts as the character it makes. What the code page lacks is written
    // "\U+XXXX", a control character with a caret, so the result is always one line.
    std::string encode(std::wstring_view text) const;

private:
    std::u32string converted(std::string_view bytes) const;
    void append(std::string& bytes, char32_t character) const;
    void appendConverted(std::string& bytes, char32_t character) const;

    std::unique_ptr<ByteConverter> m_converter;
};
}  // namespace host::dxf
