#include "host/database/core.h"

#include "host/database/objectstate.h"
#include "host/database/recordnames.h"

namespace host
{
AcDbStub* DatabaseCore::makeResident(AcDbObject* object, AcDbStub* owner)
{
    AcDbStub* stub = m_objects.add(object, m_handles.take());
    ObjectState::joinOpen(*object, stub, owner);
    m_open.add(*object);
    return stub;
}

AcDbStub* DatabaseCore::addLoaded(AcDbObject* object, AcDbStub* owner, std::uint64_t handle)
{
    AcDbStub* stub = m_objects.add(object, handle);
    ObjectState::joinClosed(*object, stub, owner);
    return stub;
}

void DatabaseCore::nameRecord(AcDbStub* table, AcDbSymbolTableRecord& record,
                              const std::wstring& name)
{
    RecordNames& names = RecordNames::of(*static_cast<AcDbSymbolTable*>(table->object));
    const std::wstring& kept = names.add(name, record.objectId().stub());
    AcDbSymbolTableRecord::Internals::setName(record, kept.c_str());
}
}  // namespace host
