// Taking back what was done to the objects of a drawing since a moment.
#pragma once

#include "host/database/core.h"

namespace host
{
struct UndoMark
{
    std::size_t stubs;
    std::size_t erased;
    std::size_t layers;
    CurrentProperties current;
};

UndoMark undoMark(const AcDbDatabase& database);
// Objects made since the mark are erased, those erased since are back, layers and current
// properties are as they were. Marks made later are void.
void undoTo(AcDbDatabase& database, const UndoMark& mark);
}  // namespace host
