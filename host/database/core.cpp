#include "host/database/core.h"

#include "host/database/access.h"
#include "host/runtime/foldcase.h"

namespace host
{
RetiredObjects::~RetiredObjects()
{
    for (AcDbObject* object : m_ring)
    {
        ObjectAccess::destroy(object);
    }
}

void RetiredObjects::add(AcDbObject* object)
{
    AcDbObject*& place = m_ring[m_next];
    m_next = (m_next + 1) % m_ring.size();
    ObjectAccess::destroy(place);
    place = object;
}

DatabaseCore::DatabaseCore(AcDbDatabase& owner) : database(owner), stubs(*this) {}

DatabaseCore::~DatabaseCore()
{
    for (std::size_t i = 0; i < stubs.size(); ++i)
    {
        if (!stubs[i].packed())
        {
            ObjectAccess::destroy(stubs[i].object);
        }
    }
}

AcDbStub* DatabaseCore::makeResident(AcDbObject* object, AcDbStub* owner)
{
    AcDbStub* stub = stubs.add(nextHandle++);
    stub->object = object;
    if (object->isA() == AcDbLine::desc())
    {
        stub->flags |= AcDbStub::isLine;
    }
    ObjectAccess::stub(*object) = stub;
    ObjectAccess::owner(*object) = owner;
    ObjectAccess::forWrite(*object) = true;
    open.push_back(object);
    return stub;
}

AcDbStub* DatabaseCore::addLoaded(AcDbObject* object, AcDbStub* owner, std::uint64_t handle)
{
    AcDbStub* stub = stubs.add(handle);
    stub->object = object;
    ObjectAccess::stub(*object) = stub;
    ObjectAccess::owner(*object) = owner;
    ObjectAccess::forWrite(*object) = false;
    return stub;
}

void DatabaseCore::nameRecord(AcDbStub* table, AcDbSymbolTableRecord* record, std::wstring name)
{
    AcDbSymbolTable::Names& names =
        ObjectAccess::names(*static_cast<AcDbSymbolTable*>(table->object));
    AcDbStub* stub = ObjectAccess::stub(*record);
    names.order.push_back(stub);
    names.byFoldedName.emplace(foldCase(name), stub);
    m_names.push_back(std::move(name));
    ObjectAccess::name(*record) = m_names.back().c_str();
}
}  // namespace host
