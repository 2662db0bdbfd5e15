// The state of a drawing beside its objects, for the services above the database.
#pragma once

#include "host/database/core.h"

namespace host
{
inline DrawingState& stateOf(AcDbDatabase& database)
{
    return coreOf(database).state();
}
inline CurrentProperties& currentOf(AcDbDatabase& database)
{
    return coreOf(database).current();
}

// Name of a table record; empty for a null id. No object is opened.
std::wstring recordName(const AcDbObjectId& id);
// Record of that name in a table, letter case ignored; null when missing or erased.
AcDbObjectId findRecord(const AcDbObjectId& table, const std::wstring& name);
}  // namespace host
