// A new, empty drawing as the working database for the length of a test.
#pragma once

#include <memory>

#include "dbapserv.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "host/database/drawing.h"
#include "host/dxf/drawingfile.h"

class EmptyDrawing
{
public:
    EmptyDrawing() : m_database(host::newDrawing())
    {
        acdbHostApplicationServices()->setWorkingDatabase(m_database.get());
    }

    AcDbDatabase& database() { return *m_database; }
    AcDbDatabase* operator->() { return m_database.get(); }
    host::DatabaseCore& core() { return host::coreOf(*m_database); }

    // Appends the entity [adopted] to model space and closes it. Returns its id.
    AcDbObjectId add(AcDbEntity* entity)
    {
        AcDbObjectId id;
        AcDbBlockTable* table = nullptr;
        AcDbBlockTableRecord* record = nullptr;
        m_database->getBlockTable(table, AcDb::kForRead);
        table->getAt(ACDB_MODEL_SPACE, record, AcDb::kForWrite);
        record->appendAcDbEntity(id, entity);
        entity->close();
        record->close();
        table->close();
        return id;
    }

    AcDbObjectId addLine(double x0, double y0, double x1, double y1)
    {
        return add(new AcDbLine(AcGePoint3d(x0, y0, 0), AcGePoint3d(x1, y1, 0)));
    }

private:
    std::unique_ptr<AcDbDatabase> m_database;
};
