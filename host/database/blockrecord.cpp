#include "host/database/core.h"
#include "host/database/entitystyle.h"
#include "host/database/fitness.h"
#include "host/database/objectstate.h"
#include "host/database/polylinevertices.h"

ACRX_DEFINE_MEMBERS(AcDbBlockTableRecord, AcDbSymbolTableRecord)

namespace
{
// Adds the parts of a polyline to the database together with it. Each part gets its own handle, and
// so does the end mark of the sequence.
void appendVertices(host::DatabaseCore& core, AcDb2dPolyline& polyline)
{
    AcDbStub* owner = polyline.objectId().stub();
    host::PolylineVertices& vertices = host::PolylineVertices::of(polyline);
    for (AcDb2dVertex* vertex : vertices.vertices())
    {
        core.makeResident(vertex, owner);
        vertex->close();
    }
    vertices.sequenceEnd = core.objects().addForeign(core.handles().take());
}

// Does what texts and polylines need beyond a line.
void completeMembers(host::DatabaseCore& core, AcDbEntity& entity)
{
    AcDbText* text = AcDbText::cast(&entity);
    if (text != nullptr && text->textStyle().isNull())
    {
        text->setTextStyle(AcDbObjectId(core.current().textStyle));
    }
    if (AcDb2dPolyline* polyline = AcDb2dPolyline::cast(&entity))
    {
        appendVertices(core, *polyline);
    }
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
    if (!host::isFit(*entity))
    {
        return Acad::eInvalidInput;
    }
    AcDbStub* own = objectId().stub();
    host::DatabaseCore& core = host::coreOf(own);
    host::EntityStyle::fill(*entity, core.current());
    const AcDbStub* stub = core.makeResident(entity, own);
    id = entity->objectId();
    host::ObjectState::forgiveClose(*entity);
    if ((stub->flags & AcDbStub::isLine) == 0)
    {
        completeMembers(core, *entity);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbEntity* entity)
{
    AcDbObjectId id;
    return appendAcDbEntity(id, entity);
}
