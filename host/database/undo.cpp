#include "host/database/undo.h"

#include "host/database/access.h"

namespace host
{
UndoMark undoMark(const AcDbDatabase& database)
{
    const DatabaseCore& core = database.core();
    return {core.stubs.size(), core.erasedLog.size(), core.layerLog.size(), core.current};
}

namespace
{
LayerFlags flagsOf(AcDbLayerTableRecord* layer)
{
    return {layer, layer->isFrozen(), layer->isLocked(), layer->isOff()};
}

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
    for (const LayerFlags& before : changes.layerLog)
    {
        changes.layers.push_back(flagsOf(before.layer));
    }
    return changes;
}
}  // namespace

UndoneChanges undoTo(AcDbDatabase& database, const UndoMark& mark)
{
    DatabaseCore& core = database.core();
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
        ObjectAccess::setLayerFlags(core.layerLog.back());
        core.layerLog.pop_back();
    }
    core.erasedLog.resize(mark.erased);
    core.current = mark.current;
    return changes;
}

void redo(AcDbDatabase& database, const UndoneChanges& changes)
{
    DatabaseCore& core = database.core();
    for (AcDbStub* stub : changes.erasedLog)
    {
        stub->setErased(true);
    }
    for (std::size_t i = 0; i < changes.erased.size(); ++i)
    {
        core.stubs[changes.mark.stubs + i].setErased(changes.erased[i]);
    }
    for (const LayerFlags& flags : changes.layers)
    {
        ObjectAccess::setLayerFlags(flags);
    }
    core.erasedLog.insert(core.erasedLog.end(), changes.erasedLog.begin(), changes.erasedLog.end());
    core.layerLog.insert(core.layerLog.end(), changes.layerLog.begin(), changes.layerLog.end());
    core.current = changes.current;
}
}  // namespace host
