#include "output/entities.h"

bool makeLayerUsable(const ACHAR* layerName, bool makeUsable)
{
    if (layerName == nullptr)
    {
        return false;
    }
    AcDbSymbolTableRecordPointer<AcDbLayerTableRecord> layer(
        layerName, acdbHostApplicationServices()->workingDatabase(), AcDb::kForRead);
    if (layer.openStatus() != Acad::eOk)
    {
        return false;
    }
    if (!makeUsable)
    {
        return true;
    }
    if (layer->upgradeOpen() != Acad::eOk)
    {
        return false;
    }
    layer->setIsFrozen(false);
    layer->setIsLocked(false);
    layer->setIsOff(false);
    layer.close();
    return true;
}

bool linetypeExists(const ACHAR* linetypeName)
{
    if (linetypeName == nullptr)
    {
        return false;
    }
    AcDbSymbolTablePointer<AcDbLinetypeTable> linetypes(
        acdbHostApplicationServices()->workingDatabase(), AcDb::kForRead);
    if (linetypes.openStatus() != Acad::eOk)
    {
        return false;
    }
    AcDbObjectId id;
    return linetypes->getAt(linetypeName, id, false) == Acad::eOk;
}
