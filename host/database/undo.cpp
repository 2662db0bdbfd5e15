#include "host/database/undo.h"

#include "host/database/access.h"

namespace host
{
UndoMark undoMark(const AcDbDatabase& database)
{
    const DatabaseCore& core = database.core();
    return {core.stubs.size(), core.erasedLog.size(), core.layerLog.size(), core.current};
}

void undoTo(AcDbDatabase& database, const UndoMark& mark)
{
    DatabaseCore& core = database.core();
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
}
}  // namespace host
