#include "host/database/access.h"

namespace host
{
void ObjectAccess::destroy(AcDbObject* object)
{
    if (object != nullptr)
    {
        object->m_released = true;
        delete object;
    }
}

void ObjectAccess::setLayerFlags(const LayerFlags& flags)
{
    flags.layer->m_frozen = flags.frozen;
    flags.layer->m_locked = flags.locked;
    flags.layer->m_off = flags.off;
}

void ObjectAccess::setTextStyle(AcDbTextStyleTableRecord& record, double oblique, double xScale,
                                double textSize)
{
    record.m_oblique = oblique;
    record.m_xScale = xScale;
    record.m_textSize = textSize;
}

LineStyle ObjectAccess::lineStyle(const AcDbEntity& entity)
{
    LineStyle style;
    style.owner = entity.m_owner;
    style.layer = entity.m_layer;
    style.linetype = entity.m_linetype;
    style.normal = entity.m_normal;
    style.linetypeScale = entity.m_linetypeScale;
    style.reactors = entity.m_reactors;
    style.color = entity.m_color;
    style.lineWeight = entity.m_lineWeight;
    style.invisible = entity.m_invisible;
    return style;
}

void ObjectAccess::applyStyle(AcDbEntity& entity, const LineStyle& style)
{
    entity.m_owner = style.owner;
    entity.m_layer = style.layer;
    entity.m_linetype = style.linetype;
    entity.m_normal = style.normal;
    entity.m_linetypeScale = style.linetypeScale;
    entity.m_reactors = style.reactors;
    entity.m_color = style.color;
    entity.m_lineWeight = style.lineWeight;
    entity.m_invisible = style.invisible;
    entity.m_given = allProperties;
}

void ObjectAccess::setPoints(AcDbLine& line, const AcGePoint3d& start, const AcGePoint3d& end)
{
    line.m_start = start;
    line.m_end = end;
}

AcDbObject* resolve(AcDbStub* stub)
{
    if (!stub->packed())
    {
        return stub->object;
    }
    const double* at = stub->line;
    DatabaseCore& core = coreOf(stub);
    AcDbLine* const retired = core.retired.take();
    AcDbLine* const line = retired != nullptr ? retired : new AcDbLine();
    ObjectAccess::stub(*line) = stub;
    ObjectAccess::forWrite(*line) = false;  // a new object is open
    ObjectAccess::setPoints(*line, AcGePoint3d(at[0], at[1], at[2]),
                            AcGePoint3d(at[3], at[4], at[5]));
    ObjectAccess::applyStyle(*line, core.lineStyles[stub->style]);
    ObjectAccess::changed(*line) = false;
    stub->flags &= ~AcDbStub::isPacked;
    stub->object = line;
    return line;
}

void pack(AcDbObject* object)
{
    AcDbStub* stub = ObjectAccess::stub(*object);
    DatabaseCore& core = coreOf(stub);
    const auto* line = static_cast<const AcDbLine*>(object);
    stub->flags |= AcDbStub::isPacked;
    stub->line[0] = line->startPoint().x;  // where its address has stood
    if (ObjectAccess::changed(*line))
    {
        const AcGePoint3d start = line->startPoint();
        const AcGePoint3d end = line->endPoint();
        const double points[] = {start.x, start.y, start.z, end.x, end.y, end.z};
        std::copy(std::begin(points), std::end(points), stub->line);
        stub->style = core.lineStyles.intern(ObjectAccess::lineStyle(*line));
    }
    core.retired.add(object);
}

AcRxClass* typeOf(const AcDbStub* stub)
{
    if (stub->flags & AcDbStub::isLine)
    {
        return AcDbLine::desc();
    }
    return stub->object ? stub->object->isA() : nullptr;
}

static AcDbEntity* entityOf(const AcDbStub* stub)
{
    return stub->flags & AcDbStub::isEntity ? static_cast<AcDbEntity*>(stub->object) : nullptr;
}

AcDbStub* layerOf(const AcDbStub* stub)
{
    if (stub->packed())
    {
        return coreOf(stub).lineStyles[stub->style].layer;
    }
    const AcDbEntity* entity = entityOf(stub);
    return entity ? ObjectAccess::layer(*entity) : nullptr;
}

AcDbStub* ownerOf(const AcDbStub* stub)
{
    if (stub->packed())
    {
        return coreOf(stub).lineStyles[stub->style].owner;
    }
    return stub->object ? ObjectAccess::owner(*stub->object) : nullptr;
}

std::uint32_t reactorsOf(const AcDbStub* stub)
{
    if (stub->packed())
    {
        return coreOf(stub).lineStyles[stub->style].reactors;
    }
    AcDbEntity* entity = entityOf(stub);
    return entity ? ObjectAccess::reactors(*entity) : 0;
}

static std::string nameOf(const AcRxClass& type)
{
    const std::wstring name = type.name();
    return std::string(name.begin(), name.end());
}

std::string describe(const AcDbObject& object)
{
    const AcDbStub* stub = ObjectAccess::stub(object);
    return stub != nullptr ? describe(*stub) : nameOf(*object.isA()) + " that is not in a database";
}

std::string describe(const AcDbStub& stub)
{
    char handle[40];
    std::snprintf(handle, sizeof handle, " with handle %llX",
                  static_cast<unsigned long long>(stub.handle));
    return nameOf(*typeOf(&stub)) + handle;
}
}  // namespace host
