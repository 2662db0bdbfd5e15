#include "host/windows/format.h"

#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <optional>
#include <string_view>

#include "host/windows/emulated/decimal.h"

namespace host
{
namespace
{
struct Conversion
{
    std::string flags;
    int width = 0;
    std::optional<int> precision;
    std::wstring size;
    wchar_t type = 0;

    bool has(char flag) const { return flags.find(flag) != std::string::npos; }
    // The small letter takes wide text and the capital letter narrow text, unless a size prefix
    // says otherwise.
    bool isNarrow() const
    {
        const bool capital = type == L'S' || type == L'C';
        return capital ? size != L"l" && size != L"w" : size == L"h";
    }
    std::string forNumber(const char* length) const
    {
        const std::string digits = precision ? "." + std::to_string(*precision) : "";
        const std::string columns = width > 0 ? std::to_string(width) : "";
        return "%" + flags + columns + digits + length + char(type);
    }
};

// Converts each byte to the unit of the same number.
std::wstring widened(std::string_view bytes)
{
    return std::wstring(reinterpret_cast<const unsigned char*>(bytes.data()),
                        reinterpret_cast<const unsigned char*>(bytes.data() + bytes.size()));
}

template <class Number>
std::wstring numberText(const std::string& format, Number number)
{
    const int length = std::snprintf(nullptr, 0, format.c_str(), number);
    if (length < 0)
    {
        return {};
    }
    std::string text(length + 1, '\0');
    std::snprintf(text.data(), text.size(), format.c_str(), number);
    text.pop_back();
    return widened(text);
}

class Formatter
{
public:
    Formatter(const wchar_t* format, std::va_list arguments) : m_at(format)
    {
        va_copy(m_arguments, arguments);
    }
    ~Formatter() { va_end(m_arguments); }
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    std::wstring run()
    {
        std::wstring result;
        while (*m_at != L'\0')
        {
            if (*m_at++ == L'%')
            {
                result += converted(parse());
            }
            else
            {
                result += m_at[-1];
            }
        }
        return result;
    }

private:
    const wchar_t* m_at;
    std::va_list m_arguments;

    Conversion parse();
    int parseCount();
    std::wstring parseSize();
    std::wstring converted(const Conversion& conversion);
    long long signedArgument(const std::wstring& size);
    unsigned long long unsignedArgument(const std::wstring& size);
    std::wstring real(const Conversion& conversion);
    std::wstring fixed(const Conversion& conversion, double value);
    std::wstring pointer(const Conversion& conversion);
    std::wstring character(const Conversion& conversion);
    std::wstring text(const Conversion& conversion);
};

Conversion Formatter::parse()
{
    Conversion conversion;
    while (*m_at != L'\0' && std::wcschr(L"-+ #0", *m_at) != nullptr)
    {
        conversion.flags += char(*m_at++);
    }
    conversion.width = parseCount();
    if (conversion.width < 0)
    {
        conversion.flags += '-';
        conversion.width = conversion.width == INT_MIN ? INT_MAX : -conversion.width;
    }
    if (*m_at == L'.')
    {
        ++m_at;
        const int precision = parseCount();
        conversion.precision = precision < 0 ? std::nullopt : std::optional(precision);
    }
    conversion.size = parseSize();
    conversion.type = *m_at != L'\0' ? *m_at++ : L'\0';
    return conversion;
}

// A `*` takes the count from the arguments.
int Formatter::parseCount()
{
    if (*m_at == L'*')
    {
        ++m_at;
        return va_arg(m_arguments, int);
    }
    long long count = 0;
    for (; *m_at >= L'0' && *m_at <= L'9'; ++m_at)
    {
        count = count < INT_MAX ? 10 * count + (*m_at - L'0') : count;
    }
    return count < INT_MAX ? int(count) : INT_MAX;
}

std::wstring Formatter::parseSize()
{
    static constexpr std::wstring_view sizes[] = {L"I64", L"I32", L"I", L"ll",
                                                  L"l",   L"h",   L"w", L"L"};
    for (const std::wstring_view size : sizes)
    {
        if (std::wcsncmp(m_at, size.data(), size.size()) == 0)
        {
            m_at += size.size();
            return std::wstring(size);
        }
    }
    return {};
}

std::wstring Formatter::converted(const Conversion& conversion)
{
    switch (conversion.type)
    {
        case L'\0':
            return {};
        case L'd':
        case L'i':
            return numberText(conversion.forNumber("ll"), signedArgument(conversion.size));
        case L'u':
        case L'o':
        case L'x':
        case L'X':
            return numberText(conversion.forNumber("ll"), unsignedArgument(conversion.size));
        case L'e':
        case L'E':
        case L'f':
        case L'g':
        case L'G':
            return real(conversion);
        case L'p':
            return pointer(conversion);
        case L'c':
        case L'C':
            return character(conversion);
        case L's':
        case L'S':
            return text(conversion);
        default:
            return {conversion.type};
    }
}

long long Formatter::signedArgument(const std::wstring& size)
{
    if (size == L"ll" || size == L"I64")
    {
        return va_arg(m_arguments, long long);
    }
    if (size == L"l")
    {
        return va_arg(m_arguments, long);
    }
    if (size == L"I")
    {
        return va_arg(m_arguments, std::ptrdiff_t);
    }
    const int value = va_arg(m_arguments, int);
    return size == L"h" ? short(value) : value;
}

unsigned long long Formatter::unsignedArgument(const std::wstring& size)
{
    const long long value = signedArgument(size);
    if (size == L"h")
    {
        return static_cast<unsigned short>(value);
    }
    return size.empty() || size == L"I32" ? static_cast<unsigned>(value) : value;
}

std::wstring padded(std::wstring text, const Conversion& conversion)
{
    const std::size_t width = conversion.width;
    if (text.size() < width)
    {
        text.insert(conversion.has('-') ? text.size() : 0, width - text.size(), L' ');
    }
    return text;
}

// On the module's platform a long double is a double.
std::wstring Formatter::real(const Conversion& conversion)
{
    const double value = conversion.size == L"L" ? double(va_arg(m_arguments, long double))
                                                 : va_arg(m_arguments, double);
    if (conversion.type == L'f' && std::isfinite(value))
    {
        return fixed(conversion, value);
    }
    return numberText(conversion.forNumber(""), value);
}

std::wstring Formatter::fixed(const Conversion& conversion, double value)
{
    const int decimals = conversion.precision.value_or(6);
    std::string digits = fixedDigits(std::fabs(value), decimals);
    if (decimals == 0 && conversion.has('#'))
    {
        digits += '.';
    }
    const std::string positive = conversion.has('+') ? "+" : conversion.has(' ') ? " " : "";
    const std::string sign = std::signbit(value) ? "-" : positive;
    const std::size_t length = sign.size() + digits.size();
    const std::size_t width = conversion.width;
    if (conversion.has('0') && !conversion.has('-') && length < width)
    {
        digits.insert(0, width - length, '0');
    }
    return padded(widened(sign + digits), conversion);
}

// Writes a pointer as sixteen digits without 0x.
std::wstring Formatter::pointer(const Conversion& conversion)
{
    const void* address = va_arg(m_arguments, void*);
    return padded(numberText("%016llX", reinterpret_cast<unsigned long long>(address)), conversion);
}

std::wstring Formatter::character(const Conversion& conversion)
{
    const int value = va_arg(m_arguments, int);
    const wchar_t unit = conversion.isNarrow() ? static_cast<unsigned char>(value) : value;
    return padded({unit}, conversion);
}

// A text with a precision needs no NUL at its end.
std::wstring Formatter::text(const Conversion& conversion)
{
    const std::size_t limit = conversion.precision ? *conversion.precision : SIZE_MAX;
    const void* argument = va_arg(m_arguments, const void*);
    if (argument == nullptr)
    {
        return padded(std::wstring(L"(null)").substr(0, limit), conversion);
    }
    if (conversion.isNarrow())
    {
        const char* bytes = static_cast<const char*>(argument);
        return padded(widened({bytes, strnlen(bytes, limit)}), conversion);
    }
    const wchar_t* units = static_cast<const wchar_t*>(argument);
    return padded({units, wcsnlen(units, limit)}, conversion);
}
}  // namespace

std::wstring formatWide(const wchar_t* format, std::va_list arguments)
{
    return Formatter(format, arguments).run();
}
}  // namespace host
