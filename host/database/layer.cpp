#include "host/database/core.h"

ACRX_DEFINE_MEMBERS(AcDbLayerTableRecord, AcDbSymbolTableRecord)

namespace
{
// Records the layer, so that the change can be undone.
void remember(AcDbLayerTableRecord& layer)
{
    host::coreOf(layer.objectId().stub()).undoLog().noteLayer(layer);
}
}  // namespace

Acad::ErrorStatus AcDbLayerTableRecord::setIsFrozen(bool frozen)
{
    assertWriteEnabled("AcDbLayerTableRecord::setIsFrozen");
    if (frozen && host::coreOf(objectId().stub()).current().layer == objectId().stub())
    {
        return Acad::eInvalidLayer;
    }
    remember(*this);
    m_frozen = frozen;
    return Acad::eOk;
}

void AcDbLayerTableRecord::setIsLocked(bool locked)
{
    assertWriteEnabled("AcDbLayerTableRecord::setIsLocked");
    remember(*this);
    m_locked = locked;
}

void AcDbLayerTableRecord::setIsOff(bool off)
{
    assertWriteEnabled("AcDbLayerTableRecord::setIsOff");
    remember(*this);
    m_off = off;
}
