#include "dbapserv.h"
#include "host/database/core.h"
#include "host/database/packing.h"

struct AcDbDatabase::Internals
{
    explicit Internals(AcDbDatabase& database) : core(database) {}
    static host::DatabaseCore& of(const AcDbDatabase& database)
    {
        return database.m_internals->core;
    }

    host::DatabaseCore core;
};

AcDbDatabase::AcDbDatabase() : m_internals(new Internals(*this)) {}

AcDbDatabase::~AcDbDatabase()
{
    AcDbHostApplicationServices* services = acdbHostApplicationServices();
    if (services->workingDatabase() == this)
    {
        services->setWorkingDatabase(nullptr);
    }
    delete m_internals;
}

Acad::ErrorStatus AcDbDatabase::getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode)
{
    // Every line that is drawn asks for this table. It is never erased, and its class is known.
    AcDbStub* const stub = m_internals->core.roots()[host::Root::blockTable];
    const Acad::ErrorStatus status =
        stub != nullptr ? host::openUnpacked(stub, mode) : Acad::eNullObjectId;
    table = status == Acad::eOk ? static_cast<AcDbBlockTable*>(stub->object) : nullptr;
    return status;
}

Acad::ErrorStatus AcDbDatabase::getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode)
{
    return acdbOpenObject(table, layerTableId(), mode);
}

Acad::ErrorStatus AcDbDatabase::getLinetypeTable(AcDbLinetypeTable*& table, AcDb::OpenMode mode)
{
    return acdbOpenObject(table, linetypeTableId(), mode);
}

Acad::ErrorStatus AcDbDatabase::getTextStyleTable(AcDbTextStyleTable*& table, AcDb::OpenMode mode)
{
    return acdbOpenObject(table, textStyleTableId(), mode);
}

Acad::ErrorStatus AcDbDatabase::getGroupDictionary(AcDbDictionary*& dictionary, AcDb::OpenMode mode)
{
    return acdbOpenObject(
        dictionary, AcDbObjectId(m_internals->core.roots()[host::Root::groupDictionary]), mode);
}

AcDbObjectId AcDbDatabase::blockTableId() const
{
    return AcDbObjectId(m_internals->core.roots()[host::Root::blockTable]);
}
AcDbObjectId AcDbDatabase::layerTableId() const
{
    return AcDbObjectId(m_internals->core.roots()[host::Root::layerTable]);
}
AcDbObjectId AcDbDatabase::linetypeTableId() const
{
    return AcDbObjectId(m_internals->core.roots()[host::Root::linetypeTable]);
}
AcDbObjectId AcDbDatabase::textStyleTableId() const
{
    return AcDbObjectId(m_internals->core.roots()[host::Root::textStyleTable]);
}

AcDbObjectId AcDbDatabase::clayer() const
{
    return AcDbObjectId(m_internals->core.current().layer);
}
AcDbObjectId AcDbDatabase::textstyle() const
{
    return AcDbObjectId(m_internals->core.current().textStyle);
}
AcDbObjectId AcDbDatabase::celtype() const
{
    return AcDbObjectId(m_internals->core.current().linetype);
}

AcDbHostApplicationServices* acdbHostApplicationServices()
{
    static AcDbHostApplicationServices services;
    return &services;
}

host::DatabaseCore& host::coreOf(const AcDbDatabase& database)
{
    return AcDbDatabase::Internals::of(database);
}
