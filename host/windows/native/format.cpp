#include "host/windows/format.h"

#include <cwchar>

namespace host
{
std::wstring formatWide(const wchar_t* format, std::va_list arguments)
{
    std::va_list measured;
    va_copy(measured, arguments);
    const int length = _vscwprintf(format, measured);
    va_end(measured);
    std::wstring text(length > 0 ? length : 0, L'\0');
    _vsnwprintf(text.data(), text.size(), format, arguments);
    return text;
}
}  // namespace host
