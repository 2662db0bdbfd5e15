#include "host/database/objectstore.h"

#include <algorithm>
#include <iterator>

#include "host/database/entitystyle.h"
#include "host/database/objectstate.h"
#include "host/database/packing.h"

namespace host
{
ObjectStore::~ObjectStore()
{
    std::ranges::for_each(m_objects, ObjectState::destroy);
}

namespace
{
// Returns the flags for an object's kind. The stub keeps them so that the object need not be asked
// again.
std::uint32_t kindOf(const AcDbObject& object)
{
    const AcRxClass* type = object.isA();
    if (type == AcDbLine::desc())
    {
        return AcDbStub::isEntity | AcDbStub::isLine;
    }
    return type->isDerivedFrom(AcDbEntity::desc()) ? std::uint32_t(AcDbStub::isEntity) : 0;
}
}  // namespace

AcDbStub* ObjectStore::add(AcDbObject* object, std::uint64_t handle)
{
    AcDbStub* stub = m_stubs.add(handle);
    stub->object = object;
    stub->flags = kindOf(*object);
    if ((stub->flags & AcDbStub::isLine) == 0)
    {
        m_objects.push_back(object);
    }
    return stub;
}

AcDbLine* ObjectStore::unpack(AcDbStub* stub)
{
    const double* at = stub->line;
    const LineStyle& style = m_styles[stub->style];
    AcDbLine* const retired = m_retired.take();
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

void ObjectStore::pack(AcDbLine* line)
{
    AcDbStub* stub = line->objectId().stub();
    stub->flags |= AcDbStub::isPacked;
    stub->line[0] = line->startPoint().x;  // overwrites the object's address
    if (ObjectState::hasChanged(*line))
    {
        const AcGePoint3d start = line->startPoint();
        const AcGePoint3d end = line->endPoint();
        const double points[] = {start.x, start.y, start.z, end.x, end.y, end.z};
        std::copy(std::begin(points), std::end(points), stub->line);
        stub->style = m_styles.internStyleOf(*line);
    }
    m_retired.add(line);
}

void ObjectStore::addReactor(AcDbStub* entity, AcDbStub* reactor)
{
    const std::uint32_t with = m_reactors.with(reactorsOf(entity), reactor);
    if (!entity->packed())
    {
        ObjectState::noteChange(*entity->object);
        EntityStyle::setReactors(*static_cast<AcDbEntity*>(entity->object), with);
        return;
    }
    LineStyle style = m_styles[entity->style];
    style.reactors = with;
    entity->style = m_styles.intern(style);
}
}  // namespace host
