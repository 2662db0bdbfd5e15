// What stands behind an AcDbDatabase.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "dbdict.h"
#include "dbgroup.h"
#include "dbmain.h"
#include "dbsymtb.h"
#include "host/database/currentproperties.h"
#include "host/database/drawingstate.h"
#include "host/database/extents.h"
#include "host/database/linestyle.h"
#include "host/database/stub.h"
#include "host/database/tablerecords.h"

class AcDbLine;

namespace host
{
// Where the drawing was read from; known to the file service only.
struct DrawingSource
{
    virtual ~DrawingSource() = default;
    // Of what the file holds in model space.
    virtual const WorldExtents& modelExtents() = 0;
};

// Objects that were closed a moment ago. Makers of entities still ask a closed line for its id,
// draw it and close it a second time, so its heap object outlives the close for a while.
class RetiredObjects
{
public:
    ~RetiredObjects();
    void add(AcDbObject* object);
    // The one that would go next, for another line to be opened in its place; null when there is
    // none. All of them are lines.
    AcDbLine* take();

private:
    std::array<AcDbObject*, 8> m_ring{};
    std::size_t m_next = 0;
};

struct ChangedLayer
{
    AcDbLayerTableRecord* layer;
    LayerFlags flags;
};

class DatabaseCore
{
public:
    explicit DatabaseCore(AcDbDatabase& database);
    ~DatabaseCore();
    DatabaseCore(const DatabaseCore&) = delete;
    DatabaseCore& operator=(const DatabaseCore&) = delete;

    // Gives the object a stub, its next handle and an owner; it is open for write from then on.
    AcDbStub* makeResident(AcDbObject* object, AcDbStub* owner);
    // The same for an object read from a file under its own handle: it is closed and unchanged.
    AcDbStub* addLoaded(AcDbObject* object, AcDbStub* owner, std::uint64_t handle);
    // A record of a table, likewise; the name is kept by the database.
    template <class Record>
    Record* addLoadedRecord(AcDbStub* table, std::wstring name, std::uint64_t handle);
    // A stub for an object of the file that is only referred to.
    AcDbStub* addForeign(std::uint64_t handle) { return stubs.add(handle); }

    AcDbDatabase& database;
    StubArena stubs;
    LineStyles lineStyles;
    ReactorLists reactorLists;
    DrawingState state;
    CurrentProperties current;
    RetiredObjects retired;
    std::vector<AcDbObject*> open;
    std::vector<AcDbObject*> objects;  // all but lines, which have one only while they are open
    std::uint64_t nextHandle = 1;

    AcDbStub* blockTable = nullptr;
    AcDbStub* layerTable = nullptr;
    AcDbStub* linetypeTable = nullptr;
    AcDbStub* textStyleTable = nullptr;
    AcDbStub* groupDictionary = nullptr;
    AcDbStub* modelSpace = nullptr;

    std::vector<AcDbStub*> erasedLog;
    std::vector<ChangedLayer> layerLog;  // as they were before each change

    std::unique_ptr<DrawingSource> source;

private:
    void nameRecord(AcDbStub* table, AcDbSymbolTableRecord* record, std::wstring name);

    std::deque<std::wstring> m_names;
};

template <class Record>
Record* DatabaseCore::addLoadedRecord(AcDbStub* table, std::wstring name, std::uint64_t handle)
{
    auto* record = new Record();
    addLoaded(record, table, handle);
    nameRecord(table, record, std::move(name));
    return record;
}

DatabaseCore& coreOf(const AcDbDatabase& database);

inline DatabaseCore& coreOf(const AcDbStub* stub)
{
    return StubArena::coreOf(stub);
}
}  // namespace host
