// Records the changes to objects and layers, so that they can be undone.
#pragma once

#include <cstddef>
#include <vector>

#include "host/database/stub.h"
#include "host/database/tablerecords.h"

namespace host
{
struct ChangedLayer
{
    AcDbLayerTableRecord* layer;
    LayerFlags flags;
};

// Every change of a layer has a note here, made before the change, and so has every erase of an
// object that the current step did not make. A note disappears only when it is undone, the newest
// first.
class UndoLog
{
public:
    struct Mark
    {
        std::size_t erased;
        std::size_t layers;
    };
    // The changes that an undo took back, for redo.
    struct Undone
    {
        std::vector<AcDbStub*> erased;
        std::vector<ChangedLayer> before;
        std::vector<ChangedLayer> after;
    };

    // Marks the object as erased or not. Restoring an object needs no note.
    void erase(AcDbStub* stub, bool erasing);
    void noteLayer(AcDbLayerTableRecord& layer) { m_layers.push_back({&layer, flagsOf(layer)}); }

    Mark mark() const { return {m_erased.size(), m_layers.size()}; }
    // Undoes everything since the mark. Later marks become invalid.
    Undone undoTo(const Mark& mark);
    // Redoes the changes. Nothing may have changed since undoTo returned them.
    void redo(const Undone& undone);

    // Returns the erased objects in the order of their erasing, including those restored since
    // [borrowed].
    const std::vector<AcDbStub*>& erased() const { return m_erased; }

private:
    std::vector<AcDbStub*> m_erased;
    std::vector<ChangedLayer> m_layers;  // the layers before each change
};
}  // namespace host
