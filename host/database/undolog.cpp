#include "host/database/undolog.h"

namespace host
{
void UndoLog::erase(AcDbStub* stub, bool erasing)
{
    stub->setErased(erasing);
    if (erasing && StubArena::isOfThisStep(stub))
    {
        StubArena::noteErased(stub);
    }
    else if (erasing)
    {
        m_erased.push_back(stub);
    }
}

UndoLog::Undone UndoLog::undoTo(const Mark& mark)
{
    Undone undone;
    undone.erased.assign(m_erased.begin() + std::ptrdiff_t(mark.erased), m_erased.end());
    undone.before.assign(m_layers.begin() + std::ptrdiff_t(mark.layers), m_layers.end());
    for (const ChangedLayer& changed : undone.before)
    {
        undone.after.push_back({changed.layer, flagsOf(*changed.layer)});
    }
    for (AcDbStub* stub : undone.erased)
    {
        stub->setErased(false);
    }
    while (m_layers.size() > mark.layers)
    {
        setFlags(*m_layers.back().layer, m_layers.back().flags);
        m_layers.pop_back();
    }
    m_erased.resize(mark.erased);
    return undone;
}

void UndoLog::redo(const Undone& undone)
{
    for (AcDbStub* stub : undone.erased)
    {
        stub->setErased(true);
    }
    for (const ChangedLayer& changed : undone.after)
    {
        setFlags(*changed.layer, changed.flags);
    }
    m_erased.insert(m_erased.end(), undone.erased.begin(), undone.erased.end());
    m_layers.insert(m_layers.end(), undone.before.begin(), undone.before.end());
}
}  // namespace host
