// Taking back what was done to the objects of a drawing since a moment.
#pragma once

#include "host/database/core.h"

namespace host
{
struct UndoMark
{
    std::size_t objects;
    UndoLog::Mark log;
    CurrentProperties current;
};

UndoMark undoMark(const AcDbDatabase& database);

// What was taken back, to do it again.
struct UndoneChanges
{
    UndoMark mark;
    std::vector<bool> erased;  // of the objects made since the mark, as they were
    UndoLog::Undone log;
    CurrentProperties current;
};

// Objects made since the mark are erased, those erased since are back, layers and current
// properties are as they were. Marks made later are void.
UndoneChanges undoTo(AcDbDatabase& database, const UndoMark& mark);
// Nothing may have been changed in between.
void redo(AcDbDatabase& database, const UndoneChanges& changes);
}  // namespace host
