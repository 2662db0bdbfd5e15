// Plain types of the host's interface.
#pragma once

#include <cstdint>

typedef wchar_t ACHAR;
#define ACRX_T(text) L##text

namespace Adesk
{
typedef std::int8_t Int8;
typedef std::int16_t Int16;
typedef std::int32_t Int32;
typedef std::int64_t Int64;
typedef std::uint8_t UInt8;
typedef std::uint16_t UInt16;
typedef std::uint32_t UInt32;
typedef std::uint64_t UInt64;

// An int in this release; callers may pass a bool.
typedef int Boolean;
const Boolean kFalse = 0;
const Boolean kTrue = 1;

typedef std::intptr_t GsMarker;
}  // namespace Adesk
