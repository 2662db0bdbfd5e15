// The group codes that hold a file together, whatever its records are.
#pragma once

#include <string_view>

#include "host/dxf/schema/code.h"

namespace host::dxf::schema
{
inline constexpr Code recordType{0};
inline constexpr Code name{2};  // of a section, a table or a block
inline constexpr Code variableName{9};
inline constexpr Code comment{999};

inline constexpr Code handle{5};
inline constexpr Code dimStyleHandle{105};
inline constexpr Code owner{330};
inline constexpr Code subclass{100};
inline constexpr Code list{102};  // begins with "{ACAD_REACTORS" and the like, ends with "}"
inline constexpr Code embeddedObject{101};
inline constexpr Code applicationData{1001};

// The old dimension styles had used the handle's code for something else.
constexpr Code handleOf(std::string_view recordType)
{
    return recordType == "DIMSTYLE" ? dimStyleHandle : handle;
}

// What follows is not the record's own: its codes mean something else.
constexpr bool endsOwnTags(Code code)
{
    return code == applicationData || code == embeddedObject;
}
}  // namespace host::dxf::schema
