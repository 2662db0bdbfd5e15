#include "dbapserv.h"
#include "host/database/access.h"

AcDbDatabase::AcDbDatabase() : m_core(new host::DatabaseCore(*this)) {}

AcDbDatabase::~AcDbDatabase()
{
    AcDbHostApplicationServices* services = acdbHostApplicationServices();
    if (services->workingDatabase() == this)
    {
        services->setWorkingDatabase(nullptr);
    }
    delete m_core;
}

Acad::ErrorStatus AcDbDatabase::getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode)
{
    return acdbOpenObject(table, blockTableId(), mode);
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
    return acdbOpenObject(dictionary, AcDbObjectId(m_core->groupDictionary), mode);
}

AcDbObjectId AcDbDatabase::blockTableId() const
{
    return AcDbObjectId(m_core->blockTable);
}
AcDbObjectId AcDbDatabase::layerTableId() const
{
    return AcDbObjectId(m_core->layerTable);
}
AcDbObjectId AcDbDatabase::linetypeTableId() const
{
    return AcDbObjectId(m_core->linetypeTable);
}
AcDbObjectId AcDbDatabase::textStyleTableId() const
{
    return AcDbObjectId(m_core->textStyleTable);
}

AcDbObjectId AcDbDatabase::clayer() const
{
    return AcDbObjectId(m_core->current.layer);
}
AcDbObjectId AcDbDatabase::textstyle() const
{
    return AcDbObjectId(m_core->current.textStyle);
}
AcDbObjectId AcDbDatabase::celtype() const
{
    return AcDbObjectId(m_core->current.linetype);
}

AcDbHostApplicationServices* acdbHostApplicationServices()
{
    static AcDbHostApplicationServices services;
    return &services;
}
