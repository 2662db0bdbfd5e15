#include "host/dxf/byteconverter.h"

#include <cstdlib>

#include "windows.h"

namespace host::dxf
{
namespace
{
// Returns the flag, or 0 if the system refuses it for the code page. Such a code page maps every
// byte to a character.
DWORD strictFlag(UINT codePage, DWORD flag)
{
    char probe = 'a';
    wchar_t unit = 0;
    return MultiByteToWideChar(codePage, flag, &probe, 1, &unit, 1) == 1 ? flag : 0;
}

class SystemConverter : public ByteConverter
{
public:
    explicit SystemConverter(UINT codePage)
        : m_codePage(codePage), m_flag(strictFlag(codePage, MB_ERR_INVALID_CHARS))
    {
    }

    std::size_t decode(std::string_view bytes, std::u32string& text) override;
    std::optional<std::string> encode(char32_t character) override;

private:
    std::size_t lengthAt(std::string_view bytes) const;

    UINT m_codePage;
    DWORD m_flag;
};

// Returns the length of the character that begins there, complete or not.
std::size_t SystemConverter::lengthAt(std::string_view bytes) const
{
    const unsigned char lead = bytes[0];
    if (m_codePage != CP_UTF8)
    {
        return IsDBCSLeadByteEx(m_codePage, lead) ? 2 : 1;
    }
    return lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

std::size_t SystemConverter::decode(std::string_view bytes, std::u32string& text)
{
    std::size_t at = 0;
    while (at < bytes.size())
    {
        const std::string_view one = bytes.substr(at, lengthAt(bytes.substr(at)));
        wchar_t units[4];
        const int count =
            MultiByteToWideChar(m_codePage, m_flag, one.data(), int(one.size()), units, 4);
        if (count == 0)
        {
            return at;
        }
        const bool isPair = count == 2 && IS_SURROGATE_PAIR(units[0], units[1]);
        if (isPair)
        {
            text += 0x10000 + ((char32_t(units[0]) - 0xD800) << 10) + (units[1] - 0xDC00);
        }
        else
        {
            text.append(units, units + count);
        }
        at += one.size();
    }
    return at;
}

// A letter that only looks similar does not count as the character.
std::optional<std::string> SystemConverter::encode(char32_t character)
{
    const bool isPair = character > 0xFFFF;
    const wchar_t units[] = {wchar_t(isPair ? 0xD800 + ((character - 0x10000) >> 10) : character),
                             wchar_t(0xDC00 + ((character - 0x10000) & 0x3FF))};
    const bool isUtf8 = m_codePage == CP_UTF8;
    char bytes[8];
    BOOL lacking = FALSE;
    const int count = WideCharToMultiByte(
        m_codePage, isUtf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS, units, isPair ? 2 : 1,
        bytes, sizeof bytes, nullptr, isUtf8 ? nullptr : &lacking);
    if (count == 0 || lacking)
    {
        return std::nullopt;
    }
    return std::string(bytes, count);
}

UINT numberOf(const std::string& codePage)
{
    if (codePage == "UTF-8")
    {
        return CP_UTF8;
    }
    if (codePage == "JOHAB")
    {
        return 1361;
    }
    const UINT isoPages = 28590;  // plus the number of the part
    if (codePage.starts_with("ISO8859-"))
    {
        return isoPages + std::atoi(codePage.c_str() + 8);
    }
    return codePage.starts_with("CP") ? std::atoi(codePage.c_str() + 2) : 0;
}
}  // namespace

std::unique_ptr<ByteConverter> ByteConverter::open(const std::string& codePage)
{
    const UINT number = numberOf(codePage);
    if (number == 0 || !IsValidCodePage(number))
    {
        return nullptr;
    }
    return std::make_unique<SystemConverter>(number);
}
}  // namespace host::dxf
