#include "dbsymtb.h"

#include "acutmem.h"
#include "host/database/drawing.h"
#include "host/database/packing.h"
#include "host/database/recordnames.h"
#include "host/database/tablerecords.h"

ACRX_DEFINE_MEMBERS(AcDbSymbolTableRecord, AcDbObject)
ACRX_DEFINE_MEMBERS(AcDbSymbolTable, AcDbObject)
ACRX_DEFINE_MEMBERS(AcDbBlockTable, AcDbSymbolTable)
ACRX_DEFINE_MEMBERS(AcDbLayerTable, AcDbSymbolTable)
ACRX_DEFINE_MEMBERS(AcDbLinetypeTable, AcDbSymbolTable)
ACRX_DEFINE_MEMBERS(AcDbTextStyleTable, AcDbSymbolTable)
ACRX_DEFINE_MEMBERS(AcDbLinetypeTableRecord, AcDbSymbolTableRecord)
ACRX_DEFINE_MEMBERS(AcDbTextStyleTableRecord, AcDbSymbolTableRecord)

Acad::ErrorStatus AcDbSymbolTableRecord::getName(ACHAR*& name) const
{
    assertReadEnabled("AcDbSymbolTableRecord::getName");
    return acutNewString(m_name, name);
}

Acad::ErrorStatus AcDbSymbolTableRecord::getName(const ACHAR*& name) const
{
    assertReadEnabled("AcDbSymbolTableRecord::getName");
    name = m_name;
    return Acad::eOk;
}

AcDbSymbolTable::AcDbSymbolTable() : m_internals(new Internals()) {}
AcDbSymbolTable::~AcDbSymbolTable()
{
    delete m_internals;
}

Acad::ErrorStatus AcDbSymbolTable::getAt(const ACHAR* name, AcDbObjectId& id,
                                         bool getErasedRecord) const
{
    id.setNull();
    if (name == nullptr)
    {
        return Acad::eInvalidInput;
    }
    AcDbStub* const record = m_internals->find(name);
    if (record == nullptr)
    {
        return Acad::eKeyNotFound;
    }
    if (record->erased() && !getErasedRecord)
    {
        return Acad::eDeletedEntry;
    }
    id = AcDbObjectId(record);
    return Acad::eOk;
}

bool AcDbSymbolTable::has(const ACHAR* name) const
{
    AcDbObjectId id;
    return getAt(name, id) == Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTable::openAt(const ACHAR* name, AcDbObject*& record,
                                          AcDb::OpenMode mode, bool openErased) const
{
    assertReadEnabled("AcDbSymbolTable::getAt");
    record = nullptr;
    AcDbObjectId id;
    const Acad::ErrorStatus status = getAt(name, id, openErased);
    if (status != Acad::eOk)
    {
        return status == Acad::eDeletedEntry ? Acad::eWasErased : status;
    }
    const Acad::ErrorStatus opened = host::openUnpacked(id.stub(), mode);
    record = opened == Acad::eOk ? id.stub()->object : nullptr;
    return opened;
}

void AcDbSymbolTable::fillIterator(AcDbSymbolTableIterator& iterator, bool atBeginning,
                                   bool skipErased) const
{
    assertReadEnabled("AcDbSymbolTable::newIterator");
    for (AcDbStub* stub : m_internals->inOrder())
    {
        iterator.m_ids.append(AcDbObjectId(stub));
    }
    iterator.start(atBeginning, skipErased);
}

void AcDbSymbolTableIterator::skip(int direction, bool skipErased)
{
    while (skipErased && !done() && m_ids[m_at].isErased())
    {
        m_at += direction;
    }
}

void AcDbSymbolTableIterator::start(bool atBeginning, bool skipErased)
{
    m_at = atBeginning ? 0 : m_ids.length() - 1;
    skip(atBeginning ? 1 : -1, skipErased);
}

bool AcDbSymbolTableIterator::done() const
{
    return m_at < 0 || m_at >= m_ids.length();
}

void AcDbSymbolTableIterator::step(bool forward, bool skipErased)
{
    m_at += forward ? 1 : -1;
    skip(forward ? 1 : -1, skipErased);
}

Acad::ErrorStatus AcDbSymbolTableIterator::getRecordId(AcDbObjectId& id) const
{
    if (done())
    {
        return Acad::eInvalidIndex;
    }
    id = m_ids[m_at];
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableIterator::openRecord(AcDbObject*& record, AcDb::OpenMode mode,
                                                      bool openErased) const
{
    record = nullptr;
    AcDbObjectId id;
    const Acad::ErrorStatus status = getRecordId(id);
    return status == Acad::eOk ? acdbOpenAcDbObject(record, id, mode, openErased) : status;
}

template <>
AcDbObjectId acdbTableIdFor<AcDbLayerTable>(const AcDbDatabase* database)
{
    return database->layerTableId();
}

template <>
AcDbObjectId acdbTableIdFor<AcDbLayerTableRecord>(const AcDbDatabase* database)
{
    return database->layerTableId();
}

template <>
AcDbObjectId acdbTableIdFor<AcDbLinetypeTable>(const AcDbDatabase* database)
{
    return database->linetypeTableId();
}

template <>
AcDbObjectId acdbTableIdFor<AcDbTextStyleTable>(const AcDbDatabase* database)
{
    return database->textStyleTableId();
}

template <>
AcDbObjectId acdbTableIdFor<AcDbTextStyleTableRecord>(const AcDbDatabase* database)
{
    return database->textStyleTableId();
}

namespace host
{
std::wstring recordName(const AcDbObjectId& id)
{
    if (id.isNull())
    {
        return std::wstring();
    }
    const AcDbSymbolTableRecord* record = AcDbSymbolTableRecord::cast(id.stub()->object);
    return record != nullptr ? AcDbSymbolTableRecord::Internals::name(*record) : std::wstring();
}

AcDbObjectId findRecord(const AcDbObjectId& table, const std::wstring& name)
{
    AcDbObjectId id;
    if (!table.isNull())
    {
        static_cast<AcDbSymbolTable*>(table.stub()->object)->getAt(name.c_str(), id);
    }
    return id;
}
}  // namespace host
