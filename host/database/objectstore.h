// Every object of a drawing behind its stub, in the order they were made.
#pragma once

#include <vector>

#include "dbents.h"
#include "host/database/linestyle.h"
#include "host/database/retiredlines.h"
#include "host/database/stub.h"

namespace host
{
// A stub is never taken away, and its object lives as long as the store. A closed line is packed:
// its points stand in the stub, all else in a style that it shares with its like.
class ObjectStore
{
public:
    explicit ObjectStore(DatabaseCore& core) : m_stubs(core) {}
    ~ObjectStore();
    ObjectStore(const ObjectStore&) = delete;
    ObjectStore& operator=(const ObjectStore&) = delete;

    // The object is the store's from now on [adopted].
    AcDbStub* add(AcDbObject* object, std::uint64_t handle);
    // A stub for an object of the file that is only referred to.
    AcDbStub* addForeign(std::uint64_t handle) { return m_stubs.add(handle); }

    std::size_t size() const { return m_stubs.size(); }
    AcDbStub& operator[](std::size_t index) const { return m_stubs[index]; }

    // Of a packed line: gives its object, which is closed and unchanged.
    AcDbLine* unpack(AcDbStub* stub);
    // Puts a closed line back into its stub.
    void pack(AcDbLine* line);
    // By the number that stands in the stub of a packed line.
    const LineStyle& style(std::uint32_t number) const { return m_styles[number]; }

    // A list of persistent reactors by its number.
    const std::vector<AcDbStub*>& reactors(std::uint32_t list) const { return m_reactors[list]; }
    bool hasReactor(std::uint32_t list, const AcDbStub* reactor) const
    {
        return m_reactors.contains(list, reactor);
    }
    // One more reactor of an entity, packed or not.
    void addReactor(AcDbStub* entity, AcDbStub* reactor);

private:
    StubArena m_stubs;
    LineStyles m_styles;
    ReactorLists m_reactors;
    RetiredLines m_retired;
    std::vector<AcDbObject*> m_objects;  // all but lines, which have one only while they are open
};
}  // namespace host
