#include "host/database/packing.h"

#include <algorithm>

#include "host/database/entitystyle.h"
#include "host/database/objectstate.h"

namespace host
{
AcDbObject* resolve(AcDbStub* stub)
{
    if (!stub->packed())
    {
        return stub->object;
    }
    const double* at = stub->line;
    DatabaseCore& core = coreOf(stub);
    const LineStyle& style = core.lineStyles[stub->style];
    AcDbLine* const retired = core.retired.take();
    AcDbLine* const line = retired != nullptr ? retired : new AcDbLine();
    ObjectState::joinClosed(*line, stub, style.owner);
    AcDbLine::Internals::place(*line, AcGePoint3d(at[0], at[1], at[2]),
                               AcGePoint3d(at[3], at[4], at[5]));
    EntityStyle::setStyle(*line, style);
    ObjectState::noteUnchanged(*line);
    stub->flags &= ~AcDbStub::isPacked;
    stub->object = line;
    return line;
}

void pack(AcDbObject* object)
{
    AcDbStub* stub = object->objectId().stub();
    DatabaseCore& core = coreOf(stub);
    const auto* line = static_cast<const AcDbLine*>(object);
    stub->flags |= AcDbStub::isPacked;
    stub->line[0] = line->startPoint().x;  // where its address has stood
    if (ObjectState::hasChanged(*line))
    {
        const AcGePoint3d start = line->startPoint();
        const AcGePoint3d end = line->endPoint();
        const double points[] = {start.x, start.y, start.z, end.x, end.y, end.z};
        std::copy(std::begin(points), std::end(points), stub->line);
        stub->style = core.lineStyles.intern(EntityStyle::styleOf(*line));
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

namespace
{
AcDbEntity* entityOf(const AcDbStub* stub)
{
    return stub->flags & AcDbStub::isEntity ? static_cast<AcDbEntity*>(stub->object) : nullptr;
}
}  // namespace

AcDbStub* layerOf(const AcDbStub* stub)
{
    if (stub->packed())
    {
        return coreOf(stub).lineStyles[stub->style].layer;
    }
    const AcDbEntity* entity = entityOf(stub);
    return entity ? entity->layerId().stub() : nullptr;
}

AcDbStub* ownerOf(const AcDbStub* stub)
{
    if (stub->packed())
    {
        return coreOf(stub).lineStyles[stub->style].owner;
    }
    return stub->object ? stub->object->ownerId().stub() : nullptr;
}

std::uint32_t reactorsOf(const AcDbStub* stub)
{
    if (stub->packed())
    {
        return coreOf(stub).lineStyles[stub->style].reactors;
    }
    const AcDbEntity* entity = entityOf(stub);
    return entity ? EntityStyle::reactors(*entity) : 0;
}

void addReactor(AcDbStub* entity, AcDbStub* reactor)
{
    DatabaseCore& core = coreOf(entity);
    const std::uint32_t with = core.reactorLists.with(reactorsOf(entity), reactor);
    if (!entity->packed())
    {
        ObjectState::noteChange(*entity->object);
        EntityStyle::setReactors(*entityOf(entity), with);
        return;
    }
    LineStyle style = core.lineStyles[entity->style];
    style.reactors = with;
    entity->style = core.lineStyles.intern(style);
}

namespace
{
std::string nameOf(const AcRxClass& type)
{
    const std::wstring name = type.name();
    return std::string(name.begin(), name.end());
}
}  // namespace

std::string describe(const AcDbObject& object)
{
    const AcDbStub* stub = object.objectId().stub();
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
