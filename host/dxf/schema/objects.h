// The records of section OBJECTS, which R12 does not have.
#pragma once

#include "host/dxf/schema/structure.h"
#include "host/dxf/schema/table.h"

// A table has a row a line, which clang-format would pack.
// clang-format off
namespace host::dxf::schema
{
namespace dictionary
{
inline constexpr const wchar_t* groups = L"ACAD_GROUP";  // its key in the root dictionary

inline constexpr Code key{3};
inline constexpr Code softEntry{350};
inline constexpr Code hardEntry{360};

struct Dictionary
{
    Handle handle = 0;
    Handles reactors;
    Handle owner = 0;
    int cloning = 1;  // of two records with the same key, the first stays
};

inline constexpr auto table = tableOf<Dictionary>("DICTIONARY",
    row(handle, &Dictionary::handle),
    listRow("{ACAD_REACTORS", owner, &Dictionary::reactors),
    row(owner, &Dictionary::owner, When::always, Since::r2000),
    subclassRow("AcDbDictionary"),
    row(Code(281), &Dictionary::cloning, When::always, Since::r2000));

struct Entry
{
    std::wstring key;
    Handle object = 0;
};

inline constexpr auto entry = partOf<Entry>(row(key, &Entry::key), row(softEntry, &Entry::object));
}  // namespace dictionary

namespace group
{
inline constexpr Code member{340};

struct Group
{
    Handle handle = 0;
    Handles reactors;
    Handle owner = 0;
    std::wstring description;
    int unnamed = 0;
    int selectable = 1;
    Handles members;  // last in the record
};

inline constexpr auto table = tableOf<Group>("GROUP",
    row(handle, &Group::handle),
    listRow("{ACAD_REACTORS", owner, &Group::reactors),
    row(owner, &Group::owner, When::always, Since::r2000),
    subclassRow("AcDbGroup"),
    row(Code(300), &Group::description),
    row(Code(70), &Group::unnamed),
    row(Code(71), &Group::selectable),
    row(member, &Group::members));
}  // namespace group
}  // namespace host::dxf::schema
// clang-format on
