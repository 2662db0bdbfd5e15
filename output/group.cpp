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

// Appends the entities and moves the meter after every twentieth of them, or after each entity of a
// small group, so that a large group does not spend its time on the meter.
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
    // Without a dictionary the group is not deleted, for the reason given with appendToBlock.
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
