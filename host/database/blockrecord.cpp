#include "host/database/access.h"

using host::ObjectAccess;

ACRX_DEFINE_MEMBERS(AcDbBlockTableRecord, AcDbSymbolTableRecord)

namespace
{
// The parts of a polyline enter the database with it, each under a handle of its own; the end mark
// of the sequence needs one, too.
void appendVertices(host::DatabaseCore& core, AcDb2dPolyline& polyline)
{
    AcDbStub* owner = ObjectAccess::stub(polyline);
    for (AcDb2dVertex* vertex : ObjectAccess::vertices(polyline))
    {
        core.makeResident(vertex, owner);
        vertex->close();
    }
    ObjectAccess::seqEnd(polyline) = core.addForeign(core.nextHandle++);
}
}  // namespace

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity)
{
    assertWriteEnabled("AcDbBlockTableRecord::appendAcDbEntity");
    id.setNull();
    if (entity == nullptr)
    {
        return Acad::eNullObjectPointer;
    }
    if (!entity->objectId().isNull())
    {
        return Acad::eAlreadyInDb;
    }
    AcDbStub* own = objectId().stub();
    host::DatabaseCore& core = host::coreOf(own);
    ObjectAccess::fillProperties(*entity, core.current);
    AcDbText* text = AcDbText::cast(entity);
    if (text != nullptr && text->textStyle().isNull())
    {
        text->setTextStyle(AcDbObjectId(core.current.textStyle));
    }
    id = AcDbObjectId(core.makeResident(entity, own));
    ObjectAccess::forgiveClose(*entity) = true;
    if (AcDb2dPolyline* polyline = AcDb2dPolyline::cast(entity))
    {
        appendVertices(core, *polyline);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbEntity* entity)
{
    AcDbObjectId id;
    return appendAcDbEntity(id, entity);
}
