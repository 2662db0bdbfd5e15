#include "host/plot/plaintext.h"

#include <cwctype>

#include "host/text/foldcase.h"

namespace host::plot
{
namespace
{
bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

bool startsWithThreeDigits(std::wstring_view text)
{
    return text.size() >= 3 && isDigit(text[0]) && isDigit(text[1]) && isDigit(text[2]);
}

// Removes the code that follows "%%" from the front of `rest` and returns its text.
std::wstring percentCode(std::wstring_view& rest)
{
    if (startsWithThreeDigits(rest))
    {
        const int code = (rest[0] - L'0') * 100 + (rest[1] - L'0') * 10 + (rest[2] - L'0');
        rest.remove_prefix(3);
        return std::wstring(1, wchar_t(code));
    }
    if (rest.empty())
    {
        return L"%%";
    }
    const wchar_t letter = rest[0];
    rest.remove_prefix(1);
    switch (foldCase(letter))
    {
        case L'd':
            return L"\u00B0";
        case L'p':
            return L"\u00B1";
        case L'c':
            return L"\u00D8";
        case L'u':
        case L'o':
        case L'k':
            return L"";
        case L'%':
            return L"%";
        default:
            return std::wstring(L"%%") + letter;
    }
}

// Tells whether an argument up to a semicolon follows the code, as for colours, fonts, heights and
// paragraphs.
bool hasArgument(wchar_t code)
{
    return std::wstring_view(L"ACcFfHpQTW").find(code) != std::wstring_view::npos;
}

// Removes the text up to the next semicolon from `rest`, with the semicolon, and returns the text.
std::wstring argument(std::wstring_view& rest)
{
    const std::size_t end = rest.find(L';');
    const std::wstring taken(rest.substr(0, end));
    rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
    return taken;
}

std::wstring fraction(std::wstring text)
{
    const std::size_t bar = text.find_first_of(L"/#^");
    if (bar != text.npos)
    {
        text[bar] = L'/';
    }
    return text;
}
}  // namespace

std::wstring withoutPercentCodes(std::wstring_view text)
{
    std::wstring plain;
    while (!text.empty())
    {
        if (text.starts_with(L"%%"))
        {
            text.remove_prefix(2);
            plain += percentCode(text);
            continue;
        }
        plain += text[0] < L' ' ? L' ' : text[0];
        text.remove_prefix(1);
    }
    return plain;
}

std::vector<std::wstring> paragraphs(std::wstring_view text)
{
    std::vector<std::wstring> lines(1);
    while (!text.empty())
    {
        const wchar_t c = text[0];
        text.remove_prefix(1);
        if (c == L'\n')
        {
            lines.emplace_back();
        }
        else if (c != L'\\' || text.empty())
        {
            lines.back() += c == L'{' || c == L'}' ? L"" : std::wstring(1, c);
        }
        else
        {
            const wchar_t code = text[0];
            text.remove_prefix(1);
            if (code == L'P' || code == L'N' || code == L'X')
            {
                lines.emplace_back();
            }
            else if (code == L'S')
            {
                lines.back() += fraction(argument(text));
            }
            else if (hasArgument(code))
            {
                argument(text);
            }
            else if (code == L'~')
            {
                lines.back() += L'\u00A0';
            }
            else if (code == L'\\' || code == L'{' || code == L'}')
            {
                lines.back() += code;
            }
        }
    }
    for (std::wstring& line : lines)
    {
        line = withoutPercentCodes(line);
    }
    return lines;
}
}  // namespace host::plot
