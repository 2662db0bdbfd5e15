// The wide printf of the module's platform.
#pragma once

#include <cstdarg>
#include <string>

namespace host
{
// Formats a wide text. %s %ls %ws and %c take wide text, %S %hs and %C narrow text (a byte becomes
// the unit of the same number). %d %i %u %o %x %X %e %E %f %g %G %p %% take flags, width,
// precision, `*` and h l ll I I32 I64 as usual. An unknown conversion writes its character alone. A
// null text writes "(null)".
//
// %f rounds an exact tie away from zero (2.5 becomes "3") and writes at most 17 significant digits,
// then zeros. Every other conversion writes what this platform's C library writes. The result may
// have any length.
std::wstring formatWide(const wchar_t* format, std::va_list arguments);
}  // namespace host
