// Gives the services above the database the state of a drawing beside its objects.
#pragma once

#include "host/database/core.h"

namespace host
{
// Return a part of the drawing [borrowed].
inline DrawingState& stateOf(AcDbDatabase& database)
{
    return coreOf(database).state();
}
inline CurrentProperties& currentOf(AcDbDatabase& database)
{
    return coreOf(database).current();
}

// Returns the name of a table record without opening it, or an empty name for a null id.
std::wstring recordName(const AcDbObjectId& id);
// Returns the record of that name in a table, in any letter case, or a null id if the record is
// missing or erased.
AcDbObjectId findRecord(const AcDbObjectId& table, const std::wstring& name);
}  // namespace host
