// What was done to objects and layers, so that it can be taken back.
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

// Nothing is erased and no layer changed without a note here, and a layer's note is made before the
// change. Notes go only by being taken back, the newest first.
class UndoLog
{
public:
    struct Mark
    {
        std::size_t erased;
        std::size_t layers;
    };
    // What was taken back, to do it again.
    struct Undone
    {
        std::vector<AcDbStub*> erased;
        std::vector<ChangedLayer> before;
        std::vector<ChangedLayer> after;
    };

    // Marks the object as erased or not. An object that comes back needs no note.
    void erase(AcDbStub* stub, bool erasing);
    void noteLayer(AcDbLayerTableRecord& layer) { m_layers.push_back({&layer, flagsOf(layer)}); }

    Mark mark() const { return {m_erased.size(), m_layers.size()}; }
    // Marks made later are void.
    Undone undoTo(const Mark& mark);
    // Only on what undoTo has left.
    void redo(const Undone& undone);

    // In order, whether they have come back since or not.
    const std::vector<AcDbStub*>& erased() const { return m_erased; }

private:
    std::vector<AcDbStub*> m_erased;
    std::vector<ChangedLayer> m_layers;  // as they were before each change
};
}  // namespace host
