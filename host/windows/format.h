// Wide printf as the module's platform has it.
#pragma once

#include <cstdarg>
#include <string>

namespace host
{
// %s %ls %ws and %c take wide text, %S %hs and %C narrow text (a byte is the unit of the same
// number); %d %i %u %o %x %X %e %E %f %g %G %p %% with flags, width, precision, `*` and h l ll I
// I32 I64 as usual. An unknown conversion writes its character alone. A null text writes "(null)".
//
// %f rounds an exact tie away from zero (2.5 is "3") and gives 17 significant digits at most, then
// zeros. Every other conversion writes what this platform's C library writes. The result may have
// any length.
std::wstring formatWide(const wchar_t* format, std::va_list arguments);
}  // namespace host
