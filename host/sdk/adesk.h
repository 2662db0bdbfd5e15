// The plain types of the host's interface.
#pragma once

#include <cstdint>

// ACHAR is the unit of every text that crosses the interface; ACRX_T makes a literal of such units.
// A text ends with a zero. A null text is allowed only where the comment of the call says so.
typedef wchar_t ACHAR;
#define ACRX_T(text) L##text

namespace Adesk
{
// Whole numbers of fixed sizes.
typedef std::int8_t Int8;
typedef std::int16_t Int16;
typedef std::int32_t Int32;
typedef std::int64_t Int64;
typedef std::uint8_t UInt8;
typedef std::uint16_t UInt16;
typedef std::uint32_t UInt32;
typedef std::uint64_t UInt64;

// Boolean is an int in this release. A caller may pass a bool; any value except kFalse means true.
typedef int Boolean;
const Boolean kFalse = 0;
const Boolean kTrue = 1;

// The number of an entity's part as the screen shows it; 0 means the whole entity.
typedef std::intptr_t GsMarker;
}  // namespace Adesk
