#include "output/entities.h"

namespace
{
AcDbDictionary* openGroups()
{
    AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
    AcDbDictionary* groups = nullptr;
    if (database == nullptr || database->getGroupDictionary(groups, AcDb::kForWrite) != Acad::eOk)
    {
        return nullptr;
    }
    return groups;
}

// The meter moves about twenty times, whatever the size of the group.
void appendWithMeter(AcDbGroup* group, const AcDbObjectIdArray& ids)
{
    acedSetStatusBarProgressMeter(L"Progress: ", 0, ids.length());
    const int twentieth = static_cast<int>(ids.length() * 0.05);
    const int step = twentieth == 0 ? 1 : twentieth;
    for (int i = 0; i < ids.length(); ++i)
    {
        if (i % step == 0)
        {
            acedSetStatusBarProgressMeterPos(i);
        }
        group->append(ids[i]);
    }
}
}  // namespace

AcDbObjectId makeGroup(const AcDbObjectIdArray& ids, const ACHAR* name)
{
    // A group that finds no dictionary is let go like a refused entity, see appendToBlock.
    AcDbGroup* group = new AcDbGroup(name, true);
    AcDbDictionary* groups = openGroups();
    if (groups == nullptr)
    {
        return AcDbObjectId::kNull;
    }
    AcDbObjectId id;
    const Acad::ErrorStatus status = groups->setAt(name, group, id);
    groups->close();
    appendWithMeter(group, ids);
    group->close();
    acedRestoreStatusBar();
    return status == Acad::eOk ? group->objectId() : AcDbObjectId::kNull;
}
