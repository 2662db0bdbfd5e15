// Group of entities.
#pragma once

#include "dbidar.h"
#include "dbmain.h"

// Entities that are picked together. Order of calls: make the group, put it in the group dictionary
// (AcDbDictionary::setAt), append the members, close it. It has to be in the dictionary first
// because it leaves a persistent reactor with its id on each member. Erased members do not count.
class AcDbGroup : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbGroup)

    // A group with that description, which is copied and is not its name; null counts as empty. A
    // selectable group is picked as a whole.
    AcDbGroup();
    explicit AcDbGroup(const ACHAR* description, bool selectable = true);
    ~AcDbGroup();

    // Adds an entity, which need not be open [write]. eNotInDatabase when the group is not in the
    // dictionary yet, eNullObjectId, eNotAnEntity, eAlreadyInGroup.
    Acad::ErrorStatus append(const AcDbObjectId& id);

    // What the group was made with; the text is [borrowed] and lives as long as the group.
    const ACHAR* description() const;
    bool isSelectable() const;
    // Whether its key in the dictionary begins with "*".
    bool isAnonymous() const;
    // How many members it has [read]; allEntityIds also appends their ids, in the order in which
    // they were added, to what is in the array.
    Adesk::UInt32 numEntities() const;
    Adesk::UInt32 allEntityIds(AcDbObjectIdArray& ids) const;

    struct Internals;  // the host's own

private:
    Internals* m_internals;
};
