// Group of entities.
#pragma once

#include "dbidar.h"
#include "dbmain.h"

// Must be in the group dictionary before members are appended: it leaves a persistent reactor on
// each. Erased members do not count.
class AcDbGroup : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbGroup)

    AcDbGroup();
    explicit AcDbGroup(const ACHAR* description, bool selectable = true);
    ~AcDbGroup();

    // Needs write. eNotInDatabase, eNullObjectId, eNotAnEntity, eAlreadyInGroup.
    Acad::ErrorStatus append(const AcDbObjectId& id);

    const ACHAR* description() const;
    bool isSelectable() const;
    bool isAnonymous() const;  // its key in the dictionary begins with "*"
    Adesk::UInt32 numEntities() const;
    Adesk::UInt32 allEntityIds(AcDbObjectIdArray& ids) const;

    struct Members;  // the host's own

private:
    friend struct host::ObjectAccess;
    Members* m_members;
};
