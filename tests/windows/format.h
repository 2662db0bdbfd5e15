// Formats as the host does, with the arguments given directly.
#pragma once

#include <cstdarg>
#include <string>

#include "host/windows/format.h"

inline std::wstring format(const wchar_t* text, ...)
{
    std::va_list arguments;
    va_start(arguments, text);
    const std::wstring result = host::formatWide(text, arguments);
    va_end(arguments);
    return result;
}
