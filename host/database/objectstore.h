// The objects of a drawing, each reached by its stub, in the order in which they were made.
#pragma once

#include <vector>

#include "dbents.h"
#include "host/database/linestyle.h"
#include "host/database/retiredlines.h"
#include "host/database/stub.h"

namespace host
{
// A stub is never removed, and its object lives as long as the store. A closed line is packed: the
// stub holds its points, and a style shared with other lines holds everything else. A line that is
// moved to another elevation than its block is for, or that needs a style when there are too many,
// stays on the heap from then on. Stubs and lists of reactors are [borrowed] and live as long as
// the store.
class ObjectStore
{
public:
    explicit ObjectStore(DatabaseCore& core) : m_stubs(core) {}
    ~ObjectStore();
    ObjectStore(const ObjectStore&) = delete;
    ObjectStore& operator=(const ObjectStore&) = delete;

    // Adds an object [adopted]. Returns its stub [borrowed].
    AcDbStub* add(AcDbObject* object, std::uint64_t handle);
    // Adds a stub for an object of the file to which others only refer. Returns it [borrowed].
    AcDbStub* addForeign(std::uint64_t handle) { return m_stubs.add(handle); }

    std::size_t size() const { return m_stubs.size(); }
    // Return the stubs in their order: all of them, or those from that place on.
    StubArena::Iterator begin() const { return m_stubs.from(0).begin(); }
    std::default_sentinel_t end() const { return {}; }
    StubArena::Range from(std::size_t index) const { return m_stubs.from(index); }
    AcDbStub& operator[](std::size_t index) const { return *from(index).begin(); }

    // Begins a step of undo. An object that is made in a step and erased in it never comes back.
    void beginStep() { m_stubs.beginStep(); }
    // Gives a stub another handle.
    void setHandle(AcDbStub* stub, std::uint64_t handle) { m_stubs.setHandle(stub, handle); }

    // Unpacks a packed line. Returns its object [borrowed], which is closed and unchanged.
    AcDbLine* unpack(AcDbStub* stub);
    // Packs a closed line into its stub if that has room for it.
    void pack(AcDbLine* line);
    // Returns the style of a packed line by the number in its stub [borrowed], good until the next
    // line is packed.
    const LineStyle& style(std::uint32_t number) const { return m_styles[number]; }
    // Allows fewer styles than a stub can count.
    void limitStyles(std::uint32_t most) { m_styles.limit(most); }

    // Returns a list of persistent reactors by its number.
    const std::vector<AcDbStub*>& reactors(std::uint32_t list) const { return m_reactors[list]; }
    bool hasReactor(std::uint32_t list, const AcDbStub* reactor) const
    {
        return m_reactors.contains(list, reactor);
    }
    // Adds a reactor to an entity, packed or not.
    void addReactor(AcDbStub* entity, AcDbStub* reactor);

private:
    bool write(AcDbStub* stub, const AcDbLine& line);
    void keepOnHeap(AcDbStub* stub, AcDbLine* line);

    StubArena m_stubs;
    LineStyles m_styles;
    ReactorLists m_reactors;
    RetiredLines m_retired;
    // all objects but lines, and the lines that stay on the heap
    std::vector<AcDbObject*> m_objects;
};
}  // namespace host
