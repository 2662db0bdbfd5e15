// What stands behind an AcDbDatabase.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "dbdict.h"
#include "dbgroup.h"
#include "dbmain.h"
#include "dbsymtb.h"
#include "host/database/currentproperties.h"
#include "host/database/drawingstate.h"
#include "host/database/extents.h"
#include "host/database/handles.h"
#include "host/database/objectstore.h"
#include "host/database/openobjects.h"
#include "host/database/rootobjects.h"
#include "host/database/undolog.h"

namespace host
{
// Where the drawing was read from; known to the file service only.
struct DrawingSource
{
    virtual ~DrawingSource() = default;
    // Of what the file holds in model space.
    virtual const WorldExtents& modelExtents() = 0;
};

// Puts together the parts of a drawing, each of which keeps its own rules.
class DatabaseCore
{
public:
    explicit DatabaseCore(AcDbDatabase& database) : m_database(database), m_objects(*this) {}
    DatabaseCore(const DatabaseCore&) = delete;
    DatabaseCore& operator=(const DatabaseCore&) = delete;

    // Gives the object a stub, its next handle and an owner; it is open for write from then on.
    AcDbStub* makeResident(AcDbObject* object, AcDbStub* owner);
    // The same for an object read from a file under its own handle: it is closed and unchanged.
    AcDbStub* addLoaded(AcDbObject* object, AcDbStub* owner, std::uint64_t handle);
    // The same for a record of a table; the table keeps the name.
    template <class Record>
    Record* addLoadedRecord(AcDbStub* table, const std::wstring& name, std::uint64_t handle);

    AcDbDatabase& database() const { return m_database; }
    ObjectStore& objects() { return m_objects; }
    const ObjectStore& objects() const { return m_objects; }
    OpenObjects& open() { return m_open; }
    Handles& handles() { return m_handles; }
    const Handles& handles() const { return m_handles; }
    RootObjects& roots() { return m_roots; }
    const RootObjects& roots() const { return m_roots; }
    UndoLog& undoLog() { return m_undoLog; }
    const UndoLog& undoLog() const { return m_undoLog; }
    DrawingState& state() { return m_state; }
    const DrawingState& state() const { return m_state; }
    CurrentProperties& current() { return m_current; }
    const CurrentProperties& current() const { return m_current; }

    // Null for a drawing that was never read.
    DrawingSource* source() const { return m_source.get(); }
    void setSource(std::unique_ptr<DrawingSource> source) { m_source = std::move(source); }

private:
    static void nameRecord(AcDbStub* table, AcDbSymbolTableRecord& record,
                           const std::wstring& name);

    AcDbDatabase& m_database;
    Handles m_handles;
    ObjectStore m_objects;
    OpenObjects m_open;  // goes before the objects
    RootObjects m_roots;
    UndoLog m_undoLog;
    DrawingState m_state;
    CurrentProperties m_current;
    std::unique_ptr<DrawingSource> m_source;
};

template <class Record>
Record* DatabaseCore::addLoadedRecord(AcDbStub* table, const std::wstring& name,
                                      std::uint64_t handle)
{
    auto* record = new Record();
    addLoaded(record, table, handle);
    nameRecord(table, *record, name);
    return record;
}

DatabaseCore& coreOf(const AcDbDatabase& database);

inline DatabaseCore& coreOf(const AcDbStub* stub)
{
    return StubArena::coreOf(stub);
}
}  // namespace host
