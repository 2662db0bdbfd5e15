// Groups of entities.
#pragma once

#include "dbidar.h"
#include "dbmain.h"

// Entities that are picked together. Order of calls: create the group, put it in the group
// dictionary (AcDbDictionary::setAt), append the members, close it. The group must be in the
// dictionary first because append leaves a persistent reactor with the group's id on each member.
// Erased members do not count.
class AcDbGroup : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbGroup)

    // Create a group with a copy of the description; null counts as empty. The description is not
    // the group's name. A selectable group is picked as a whole.
    AcDbGroup();
    explicit AcDbGroup(const ACHAR* description, bool selectable = true);
    ~AcDbGroup();

    // Adds an entity, which need not be open [write]. Returns eNotInDatabase when the group is not
    // in the dictionary yet, eNullObjectId, eNotAnEntity or eAlreadyInGroup.
    Acad::ErrorStatus append(const AcDbObjectId& id);

    // Return what the constructor was given. The text is [borrowed] and good as long as the group
    // lives.
    const ACHAR* description() const;
    bool isSelectable() const;
    // Tells whether the group's key in the dictionary begins with "*".
    bool isAnonymous() const;
    // Return the number of members [read]. allEntityIds also appends their ids to the array, in the
    // order in which they were added.
    Adesk::UInt32 numEntities() const;
    Adesk::UInt32 allEntityIds(AcDbObjectIdArray& ids) const;

    struct Internals;  // the host's own

private:
    Internals* m_internals;
};
