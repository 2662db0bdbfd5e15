#include "host/database/objectstore.h"

#include <algorithm>

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

LineEnds endsOf(const AcDbLine& line)
{
    return {line.startPoint(), line.endPoint()};
}
}  // namespace

AcDbStub* ObjectStore::add(AcDbObject* object, std::uint64_t handle)
{
    const std::uint32_t kind = kindOf(*object);
    const bool isLine = (kind & AcDbStub::isLine) != 0;
    AcDbStub* stub = isLine ? m_stubs.addLine(handle, endsOf(*static_cast<AcDbLine*>(object)))
                            : m_stubs.add(handle);
    if (!isLine)
    {
        m_objects.push_back(object);
    }
    stub->object = object;
    stub->flags |= kind;
    return stub;
}

AcDbLine* ObjectStore::unpack(AcDbStub* stub)
{
    const LineEnds ends = StubArena::endsOf(stub);
    const LineStyle& style = m_styles[stub->style];
    AcDbLine* const retired = m_retired.take();
    AcDbLine* const line = retired != nullptr ? retired : new AcDbLine();
    ObjectState::joinClosed(*line, stub, style.owner);
    AcDbLine::Internals::place(*line, ends);
    EntityStyle::setStyle(*line, style);
    ObjectState::noteUnchanged(*line);
    stub->flags &= ~AcDbStub::isPacked;
    stub->object = line;
    return line;
}

void ObjectStore::pack(AcDbLine* line)
{
    AcDbStub* stub = ObjectState::stub(*line);
    if (!ObjectState::hasChanged(*line) && (stub->flags & AcDbStub::isLoose) == 0)
    {
        StubArena::restore(stub, line->startPoint().x);
    }
    else if (!write(stub, *line))
    {
        keepOnHeap(stub, line);
        return;
    }
    stub->flags |= AcDbStub::isPacked;
    m_retired.add(line);
}

// Writes a line into its stub. Returns false and changes nothing if the stub cannot hold it.
bool ObjectStore::write(AcDbStub* stub, const AcDbLine& line)
{
    if ((stub->flags & AcDbStub::isLoose) != 0)
    {
        return false;
    }
    const std::uint32_t style = m_styles.internStyleOf(line);
    if (style == LineStyles::none || !StubArena::store(stub, endsOf(line)))
    {
        return false;
    }
    stub->style = style;
    return true;
}

[[gnu::noinline]] void ObjectStore::keepOnHeap(AcDbStub* stub, AcDbLine* line)
{
    if ((stub->flags & AcDbStub::isLoose) == 0)
    {
        m_objects.push_back(line);
        stub->flags |= AcDbStub::isLoose;
    }
}

void ObjectStore::addReactor(AcDbStub* entity, AcDbStub* reactor)
{
    const std::uint32_t with = m_reactors.with(reactorsOf(entity), reactor);
    if (entity->packed())
    {
        LineStyle style = m_styles[entity->style];
        style.reactors = with;
        const std::uint32_t number = m_styles.intern(style);
        if (number != LineStyles::none)
        {
            entity->style = number;
            return;
        }
        keepOnHeap(entity, unpack(entity));
    }
    ObjectState::noteChange(*entity->object);
    EntityStyle::setReactors(*static_cast<AcDbEntity*>(entity->object), with);
}
}  // namespace host
