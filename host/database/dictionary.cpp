#include "dbdict.h"

#include <algorithm>

#include "host/database/core.h"
#include "host/database/dictionaryentries.h"
#include "host/database/groupmembers.h"

ACRX_DEFINE_MEMBERS(AcDbDictionary, AcDbObject)

AcDbDictionary::AcDbDictionary() : m_internals(new Internals()) {}
AcDbDictionary::~AcDbDictionary()
{
    delete m_internals;
}

Acad::ErrorStatus AcDbDictionary::setAt(const ACHAR* key, AcDbObject* value, AcDbObjectId& id)
{
    assertWriteEnabled("AcDbDictionary::setAt");
    id.setNull();
    if (value == nullptr)
    {
        return Acad::eNullObjectPointer;
    }
    if (key == nullptr || *key == 0)
    {
        return Acad::eInvalidKey;
    }
    if (!value->objectId().isNull())
    {
        return Acad::eAlreadyInDb;
    }
    AcDbStub* own = objectId().stub();
    AcDbStub* stub = host::coreOf(own).makeResident(value, own);
    m_internals->put(m_internals->keyFor(key), stub);
    if (AcDbGroup* group = AcDbGroup::cast(value))
    {
        host::GroupMembers::of(*group).anonymous = *key == L'*';
    }
    id = AcDbObjectId(stub);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDictionary::getAt(const ACHAR* key, AcDbObjectId& id) const
{
    assertReadEnabled("AcDbDictionary::getAt");
    AcDbStub* stub = key != nullptr ? m_internals->find(key) : nullptr;
    id = AcDbObjectId(stub);
    return stub != nullptr ? Acad::eOk : Acad::eKeyNotFound;
}

bool AcDbDictionary::has(const ACHAR* key) const
{
    AcDbObjectId id;
    return getAt(key, id) == Acad::eOk;
}

Adesk::UInt32 AcDbDictionary::numEntries() const
{
    assertReadEnabled("AcDbDictionary::numEntries");
    return Adesk::UInt32(std::ranges::count_if(
        m_internals->inOrder(), [](const auto& entry) { return !entry.stub->erased(); }));
}
