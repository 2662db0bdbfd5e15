#include "host/database/undo.h"

namespace host
{
UndoMark undoMark(const AcDbDatabase& database)
{
    const DatabaseCore& core = coreOf(database);
    return {core.stubs.size(), core.erasedLog.size(), core.layerLog.size(), core.current};
}

namespace
{
UndoneChanges changesSince(const DatabaseCore& core, const UndoMark& mark)
{
    UndoneChanges changes{mark, {}, {}, {}, {}, core.current};
    for (std::size_t i = mark.stubs; i < core.stubs.size(); ++i)
    {
        changes.erased.push_back(core.stubs[i].erased());
    }
    changes.erasedLog.assign(core.erasedLog.begin() + std::ptrdiff_t(mark.erased),
                             core.erasedLog.end());
    changes.layerLog.assign(core.layerLog.begin() + std::ptrdiff_t(mark.layers),
                            core.layerLog.end());
    for (const ChangedLayer& before : changes.layerLog)
    {
        changes.layers.push_back({before.layer, flagsOf(*before.layer)});
    }
    return changes;
}
}  // namespace

UndoneChanges undoTo(AcDbDatabase& database, const UndoMark& mark)
{
    DatabaseCore& core = coreOf(database);
    UndoneChanges changes = changesSince(core, mark);
    for (std::size_t i = mark.erased; i < core.erasedLog.size(); ++i)
    {
        core.erasedLog[i]->setErased(false);
    }
    for (std::size_t i = mark.stubs; i < core.stubs.size(); ++i)
    {
        core.stubs[i].setErased(true);
    }
    while (core.layerLog.size() > mark.layers)
    {
        setFlags(*core.layerLog.back().layer, core.layerLog.back().flags);
        core.layerLog.pop_back();
    }
    core.erasedLog.resize(mark.erased);
    core.current = mark.current;
    return changes;
}

void redo(AcDbDatabase& database, const UndoneChanges& changes)
{
    DatabaseCore& core = coreOf(database);
    for (AcDbStub* stub : changes.erasedLog)
    {
        stub->setErased(true);
    }
    for (std::size_t i = 0; i < changes.erased.size(); ++i)
    {
        core.stubs[changes.mark.stubs + i].setErased(changes.erased[i]);
    }
    for (const ChangedLayer& changed : changes.layers)
    {
        setFlags(*changed.layer, changed.flags);
    }
    core.erasedLog.insert(core.erasedLog.end(), changes.erasedLog.begin(), changes.erasedLog.end());
    core.layerLog.insert(core.layerLog.end(), changes.layerLog.begin(), changes.layerLog.end());
    core.current = changes.current;
}
}  // namespace host
