#include "dbdict.h"

#include <algorithm>

#include "host/database/access.h"
#include "host/runtime/foldcase.h"

using host::ObjectAccess;

ACRX_DEFINE_MEMBERS(AcDbDictionary, AcDbObject)

AcDbDictionary::AcDbDictionary() : m_entries(new Entries()) {}
AcDbDictionary::~AcDbDictionary()
{
    delete m_entries;
}

namespace
{
// The entry of that name; an erased one is none.
template <class Entries>
AcDbStub* find(const Entries& entries, const std::wstring& key)
{
    for (const auto& entry : entries.entries)
    {
        if (!entry.stub->erased() && host::equalNoCase(entry.key, key))
        {
            return entry.stub;
        }
    }
    return nullptr;
}
}  // namespace

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
    const bool anonymous = *key == L'*';
    const std::wstring name =
        anonymous ? L"*A" + std::to_wstring(++m_entries->lastAnonymous) : std::wstring(key);
    if (AcDbStub* former = find(*m_entries, name))
    {
        former->setErased(true);
    }
    AcDbStub* own = objectId().stub();
    AcDbStub* stub = host::coreOf(own).makeResident(value, own);
    m_entries->entries.push_back({name, stub, false});
    if (AcDbGroup* group = AcDbGroup::cast(value))
    {
        ObjectAccess::members(*group).anonymous = anonymous;
    }
    id = AcDbObjectId(stub);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDictionary::getAt(const ACHAR* key, AcDbObjectId& id) const
{
    assertReadEnabled("AcDbDictionary::getAt");
    AcDbStub* stub = key != nullptr ? find(*m_entries, key) : nullptr;
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
    return Adesk::UInt32(std::count_if(m_entries->entries.begin(), m_entries->entries.end(),
                                       [](const auto& entry) { return !entry.stub->erased(); }));
}
