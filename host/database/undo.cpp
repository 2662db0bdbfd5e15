#include "host/database/undo.h"

namespace host
{
UndoMark undoMark(const AcDbDatabase& database)
{
    const DatabaseCore& core = coreOf(database);
    return {core.objects().size(), core.undoLog().mark(), core.current()};
}

UndoneChanges undoTo(AcDbDatabase& database, const UndoMark& mark)
{
    DatabaseCore& core = coreOf(database);
    const ObjectStore& objects = core.objects();
    UndoneChanges changes{mark, {}, {}, core.current()};
    for (std::size_t i = mark.objects; i < objects.size(); ++i)
    {
        changes.erased.push_back(objects[i].erased());
    }
    changes.log = core.undoLog().undoTo(mark.log);
    for (std::size_t i = mark.objects; i < objects.size(); ++i)
    {
        objects[i].setErased(true);
    }
    core.current() = mark.current;
    return changes;
}

void redo(AcDbDatabase& database, const UndoneChanges& changes)
{
    DatabaseCore& core = coreOf(database);
    core.undoLog().redo(changes.log);
    for (std::size_t i = 0; i < changes.erased.size(); ++i)
    {
        core.objects()[changes.mark.objects + i].setErased(changes.erased[i]);
    }
    core.current() = changes.current;
}
}  // namespace host
