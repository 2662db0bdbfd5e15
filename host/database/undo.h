// Undoes and redoes changes to the objects of a drawing.
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

// Begins a step. Returns a mark for the state of the drawing before it.
UndoMark undoMark(AcDbDatabase& database);

// The changes that an undo took back, for redo.
struct UndoneChanges
{
    UndoMark mark;
    std::vector<bool> erased;  // of each object made since the mark and not gone, before the undo
    UndoLog::Undone log;
    CurrentProperties current;
};

// Undoes everything since the mark. Objects made since are erased, objects erased since are
// restored, and the layers and current properties have their values of that time. Later marks
// become invalid.
UndoneChanges undoTo(AcDbDatabase& database, const UndoMark& mark);
// Redoes the changes. Nothing may have changed since they were undone.
void redo(AcDbDatabase& database, const UndoneChanges& changes);
}  // namespace host
