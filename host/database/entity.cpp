#include <cmath>

#include "dbapserv.h"
#include "host/database/drawing.h"
#include "host/database/entitystyle.h"
#include "host/database/packing.h"

ACRX_DEFINE_MEMBERS(AcDbEntity, AcDbObject)

AcDbEntity::AcDbEntity()
    : m_layer(nullptr),
      m_linetype(nullptr),
      m_normal(0, 0, 1),
      m_linetypeScale(1),
      m_color(256),
      m_lineWeight(-1),
      m_reactors(0),
      m_invisible(false),
      m_given(0)
{
}

void AcDbEntity::setDatabaseDefaults()
{
    setDatabaseDefaults(acdbHostApplicationServices()->workingDatabase());
}

void AcDbEntity::setDatabaseDefaults(AcDbDatabase* database)
{
    assertWriteEnabled("AcDbEntity::setDatabaseDefaults");
    if (database == nullptr)
    {
        return;
    }
    m_given = 0;
    Internals::fill(*this, host::currentOf(*database));
    m_invisible = false;
    subentSetProperties();
}

Adesk::UInt16 AcDbEntity::colorIndex() const
{
    return m_color;
}
AcDbObjectId AcDbEntity::layerId() const
{
    return AcDbObjectId(m_layer);
}
AcDbObjectId AcDbEntity::linetypeId() const
{
    return AcDbObjectId(m_linetype);
}
double AcDbEntity::linetypeScale() const
{
    return m_linetypeScale;
}
AcDb::LineWeight AcDbEntity::lineWeight() const
{
    return AcDb::LineWeight(m_lineWeight);
}
AcGeVector3d AcDbEntity::normal() const
{
    return m_normal;
}

AcDb::Visibility AcDbEntity::visibility() const
{
    return m_invisible ? AcDb::kInvisible : AcDb::kVisible;
}

Acad::ErrorStatus AcDbEntity::setColorIndex(Adesk::UInt16 color, Adesk::Boolean)
{
    assertWriteEnabled("AcDbEntity::setColorIndex");
    if (color > 256)
    {
        return Acad::eInvalidInput;
    }
    m_color = color;
    m_given |= Internals::color;
    return Acad::eOk;
}

namespace
{
AcDbDatabase* databaseFor(const AcDbEntity& entity)
{
    AcDbDatabase* own = entity.database();
    return own != nullptr ? own : acdbHostApplicationServices()->workingDatabase();
}

// Finds the id of a named record. Returns the status that the property setters return.
Acad::ErrorStatus lookUp(AcDbStub* table, const ACHAR* name, AcDbObjectId& id)
{
    if (name == nullptr || table == nullptr)
    {
        return Acad::eKeyNotFound;
    }
    return static_cast<AcDbSymbolTable*>(table->object)->getAt(name, id);
}

// Finds a name without opening the table, so closed records are found, too.
bool isRecord(const AcDbObjectId& id, const AcRxClass* type)
{
    return !id.isNull() && host::typeOf(id.stub()) == type;
}
}  // namespace

Acad::ErrorStatus AcDbEntity::setLayer(const ACHAR* name, Adesk::Boolean doSubents,
                                       bool allowHiddenLayer)
{
    AcDbDatabase* database = databaseFor(*this);
    if (database == nullptr)
    {
        return Acad::eNoDatabase;
    }
    AcDbObjectId id;
    const Acad::ErrorStatus status =
        lookUp(host::coreOf(*database).roots()[host::Root::layerTable], name, id);
    return status == Acad::eOk ? setLayer(id, doSubents, allowHiddenLayer) : status;
}

Acad::ErrorStatus AcDbEntity::setLayer(AcDbObjectId id, Adesk::Boolean, bool)
{
    assertWriteEnabled("AcDbEntity::setLayer");
    if (!isRecord(id, AcDbLayerTableRecord::desc()))
    {
        return Acad::eWrongObjectType;
    }
    m_layer = id.stub();
    m_given |= Internals::layer;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::setLinetype(const ACHAR* name, Adesk::Boolean doSubents)
{
    AcDbDatabase* database = databaseFor(*this);
    if (database == nullptr)
    {
        return Acad::eNoDatabase;
    }
    AcDbObjectId id;
    const Acad::ErrorStatus status =
        lookUp(host::coreOf(*database).roots()[host::Root::linetypeTable], name, id);
    return status == Acad::eOk ? setLinetype(id, doSubents) : status;
}

Acad::ErrorStatus AcDbEntity::setLinetype(AcDbObjectId id, Adesk::Boolean)
{
    assertWriteEnabled("AcDbEntity::setLinetype");
    if (!isRecord(id, AcDbLinetypeTableRecord::desc()))
    {
        return Acad::eWrongObjectType;
    }
    m_linetype = id.stub();
    m_given |= Internals::linetype;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::setLineWeight(AcDb::LineWeight weight, Adesk::Boolean)
{
    assertWriteEnabled("AcDbEntity::setLineWeight");
    static const int allowed[] = {-3, -2, -1, 0,  5,  9,  13,  15,  18,  20,  25,  30,  35, 40,
                                  50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    if (std::find(std::begin(allowed), std::end(allowed), int(weight)) == std::end(allowed))
    {
        return Acad::eInvalidInput;
    }
    m_lineWeight = Adesk::Int16(weight);
    m_given |= Internals::lineWeight;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::setVisibility(AcDb::Visibility visibility, Adesk::Boolean)
{
    assertWriteEnabled("AcDbEntity::setVisibility");
    m_invisible = visibility == AcDb::kInvisible;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::draw()
{
    if (AcDbStub* stub = objectId().stub())
    {
        stub->flags |= AcDbStub::isDrawn;
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::getStretchPoints(AcGePoint3dArray&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbEntity::intersectWith(const AcDbEntity*, AcDb::Intersect, AcGePoint3dArray&,
                                            Adesk::GsMarker, Adesk::GsMarker) const
{
    return Acad::eNotImplementedYet;
}
