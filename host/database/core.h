// The implementation of an AcDbDatabase.
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
// The file from which the drawing was read. Only the file service knows its contents.
struct DrawingSource
{
    virtual ~DrawingSource() = default;
    // Returns the extents of the file's model space [wcs]. They are [borrowed] as long as the
    // source lives.
    virtual const WorldExtents& modelExtents() = 0;
};

// Combines the parts of a drawing. Each part keeps its own rules. Accessors return [borrowed] parts
// that live as long as the core.
class DatabaseCore
{
public:
    explicit DatabaseCore(AcDbDatabase& database) : m_database(database), m_objects(*this) {}
    DatabaseCore(const DatabaseCore&) = delete;
    DatabaseCore& operator=(const DatabaseCore&) = delete;

    // Adds a new object [adopted] to the drawing: it gets a stub, the next handle and an owner. The
    // object is open for write afterwards. Returns the stub [borrowed].
    AcDbStub* makeResident(AcDbObject* object, AcDbStub* owner);
    // Adds an object [adopted] that was read from a file and keeps its handle. The object is closed
    // and unchanged afterwards. Returns the stub [borrowed].
    AcDbStub* addLoaded(AcDbObject* object, AcDbStub* owner, std::uint64_t handle);
    // Adds a record that was read from a file to a table, under a name that the table keeps.
    // Returns the record [borrowed].
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

    // Returns the source [borrowed], or nullptr for a drawing that was never read.
    DrawingSource* source() const { return m_source.get(); }
    void setSource(std::unique_ptr<DrawingSource> source) { m_source = std::move(source); }

private:
    static void nameRecord(AcDbStub* table, AcDbSymbolTableRecord& record,
                           const std::wstring& name);

    AcDbDatabase& m_database;
    Handles m_handles;
    ObjectStore m_objects;
    OpenObjects m_open;  // destroyed before the objects
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

// Return the core [borrowed] of a database, or of the database that holds a stub.
DatabaseCore& coreOf(const AcDbDatabase& database);

inline DatabaseCore& coreOf(const AcDbStub* stub)
{
    return StubArena::coreOf(stub);
}
}  // namespace host
