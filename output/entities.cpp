#include "output/entities.h"

#include "output/frame.h"

Acad::ErrorStatus appendToBlock(AcDbEntity* entity, AcDbObjectId& id, const ACHAR* blockName)
{
    AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
    if (database == nullptr)
    {
        return Acad::eNoDatabase;
    }
    AcDbBlockTable* blocks = nullptr;
    Acad::ErrorStatus status = database->getBlockTable(blocks, AcDb::kForRead);
    if (status != Acad::eOk)
    {
        return status;
    }
    AcDbBlockTableRecord* block = nullptr;
    status = blocks->getAt(blockName, block, AcDb::kForWrite, false);
    if (status != Acad::eOk)
    {
        blocks->close();
        return status;
    }
    status = block->appendAcDbEntity(id, entity);
    if (status == Acad::eOk)
    {
        entity->close();
    }
    block->close();
    blocks->close();
    return status;
}

AcDbObjectId showEntity(AcDbEntity* entity, const ACHAR* blockName)
{
    entity->transformBy(currentUcs());
    AcDbObjectId id;
    if (appendToBlock(entity, id, blockName) != Acad::eOk)
    {
        return AcDbObjectId::kNull;
    }
    entity->draw();
    // appendToBlock has closed the entity already, so the host refuses this close and changes
    // nothing.
    entity->close();
    return id;
}

Acad::ErrorStatus eraseEntity(AcDbObjectId id)
{
    AcDbEntity* entity = nullptr;
    if (acdbOpenAcDbEntity(entity, id, AcDb::kForRead, false) != Acad::eOk)
    {
        return Acad::eCannotBeErasedByCaller;
    }
    // An entity that the host refuses to change or to erase deliberately stays open. If the
    // draughtsman has locked it meanwhile, the rest of the command cannot reach it.
    Acad::ErrorStatus status = entity->upgradeOpen();
    if (status != Acad::eOk)
    {
        return status;
    }
    status = entity->erase(true);
    return status == Acad::eOk ? entity->close() : status;
}
