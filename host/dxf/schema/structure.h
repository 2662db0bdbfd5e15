// The group codes of the file's structure, which every kind of record shares.
#pragma once

#include <string_view>

#include "host/dxf/schema/code.h"

namespace host::dxf::schema
{
// The bounds of a section and of the file, as values of tags with code 0.
inline constexpr std::string_view sectionStart = "SECTION";
inline constexpr std::string_view sectionEnd = "ENDSEC";
inline constexpr std::string_view endOfFile = "EOF";

// The names of the sections that the host reads or creates.
namespace section
{
inline constexpr std::string_view header = "HEADER";
inline constexpr std::string_view classes = "CLASSES";
inline constexpr std::string_view tables = "TABLES";
inline constexpr std::string_view blocks = "BLOCKS";
inline constexpr std::string_view entities = "ENTITIES";
inline constexpr std::string_view objects = "OBJECTS";
}  // namespace section

// The header variables without which no other value can be read.
inline constexpr std::string_view versionVariable = "$ACADVER";
inline constexpr std::string_view codePageVariable = "$DWGCODEPAGE";

inline constexpr Code recordType{0};
inline constexpr Code name{2};  // of a section, a table or a block
inline constexpr Code variableName{9};
inline constexpr Code comment{999};

inline constexpr Code handle{5};
inline constexpr Code dimStyleHandle{105};
inline constexpr Code owner{330};
inline constexpr Code subclass{100};
// A list begins with a value such as "{ACAD_REACTORS" and ends with "}".
inline constexpr Code list{102};
inline constexpr Code embeddedObject{101};
inline constexpr Code applicationData{1001};

// Returns the code of a record's handle. Dimension styles have another one, because the usual code
// already meant something else in them.
constexpr Code handleOf(std::string_view recordType)
{
    return recordType == "DIMSTYLE" ? dimStyleHandle : handle;
}

// Returns true if the record's own tags end at this code. Codes after it mean something else.
constexpr bool endsOwnTags(Code code)
{
    return code == applicationData || code == embeddedObject;
}
}  // namespace host::dxf::schema
