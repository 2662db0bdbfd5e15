#include "host/database/undo.h"

namespace host
{
UndoMark undoMark(AcDbDatabase& database)
{
    DatabaseCore& core = coreOf(database);
    core.objects().beginStep();
    return {core.objects().size(), core.undoLog().mark(), core.current()};
}

UndoneChanges undoTo(AcDbDatabase& database, const UndoMark& mark)
{
    DatabaseCore& core = coreOf(database);
    UndoneChanges changes{mark, {}, {}, core.current()};
    for (const AcDbStub& stub : core.objects().from(mark.objects))
    {
        changes.erased.push_back(stub.erased());
    }
    changes.log = core.undoLog().undoTo(mark.log);
    for (AcDbStub& stub : core.objects().from(mark.objects))
    {
        stub.setErased(true);
    }
    core.current() = mark.current;
    return changes;
}

void redo(AcDbDatabase& database, const UndoneChanges& changes)
{
    DatabaseCore& core = coreOf(database);
    core.undoLog().redo(changes.log);
    auto erased = changes.erased.begin();
    for (AcDbStub& stub : core.objects().from(changes.mark.objects))
    {
        if (erased == changes.erased.end())
        {
            break;
        }
        stub.setErased(*erased++);
    }
    core.current() = changes.current;
}
}  // namespace host
