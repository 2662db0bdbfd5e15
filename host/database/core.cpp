#include "host/database/core.h"

#include <algorithm>
#include <utility>

#include "dbents.h"
#include "host/database/objectstate.h"
#include "host/database/recordnames.h"

namespace host
{
RetiredObjects::~RetiredObjects()
{
    for (AcDbObject* object : m_ring)
    {
        ObjectState::destroy(object);
    }
}

void RetiredObjects::add(AcDbObject* object)
{
    AcDbObject*& place = m_ring[m_next];
    m_next = (m_next + 1) % m_ring.size();
    ObjectState::destroy(place);
    place = object;
}

AcDbLine* RetiredObjects::take()
{
    return static_cast<AcDbLine*>(std::exchange(m_ring[m_next], nullptr));
}

DatabaseCore::DatabaseCore(AcDbDatabase& owner) : database(owner), stubs(*this) {}

DatabaseCore::~DatabaseCore()
{
    for (AcDbObject* object : open)
    {
        if (AcDbLine::cast(object) != nullptr)
        {
            ObjectState::destroy(object);
        }
    }
    std::ranges::for_each(objects, ObjectState::destroy);
}

namespace
{
// So that nobody has to ask the object again.
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

AcDbStub* DatabaseCore::makeResident(AcDbObject* object, AcDbStub* owner)
{
    AcDbStub* stub = stubs.add(nextHandle++);
    stub->object = object;
    stub->flags = kindOf(*object);
    if ((stub->flags & AcDbStub::isLine) == 0)
    {
        objects.push_back(object);
    }
    ObjectState::joinOpen(*object, stub, owner);
    open.push_back(object);
    return stub;
}

AcDbStub* DatabaseCore::addLoaded(AcDbObject* object, AcDbStub* owner, std::uint64_t handle)
{
    AcDbStub* stub = stubs.add(handle);
    stub->object = object;
    objects.push_back(object);
    ObjectState::joinClosed(*object, stub, owner);
    return stub;
}

void DatabaseCore::nameRecord(AcDbStub* table, AcDbSymbolTableRecord* record, std::wstring name)
{
    m_names.push_back(std::move(name));
    AcDbSymbolTableRecord::Internals::setName(*record, m_names.back().c_str());
    RecordNames::of(*static_cast<AcDbSymbolTable*>(table->object))
        .add(m_names.back(), record->objectId().stub());
}
}  // namespace host
