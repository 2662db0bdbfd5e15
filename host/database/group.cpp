#include "dbgroup.h"

#include "host/database/groupmembers.h"
#include "host/database/stub.h"

ACRX_DEFINE_MEMBERS(AcDbGroup, AcDbObject)

AcDbGroup::AcDbGroup() : m_internals(new Internals()) {}

AcDbGroup::AcDbGroup(const ACHAR* description, bool selectable) : m_internals(new Internals())
{
    m_internals->description = description != nullptr ? description : L"";
    m_internals->selectable = selectable;
}

AcDbGroup::~AcDbGroup()
{
    delete m_internals;
}

Acad::ErrorStatus AcDbGroup::append(const AcDbObjectId& id)
{
    assertWriteEnabled("AcDbGroup::append");
    AcDbStub* own = objectId().stub();
    AcDbStub* member = id.stub();
    if (own == nullptr)
    {
        return Acad::eNotInDatabase;
    }
    if (member == nullptr)
    {
        return Acad::eNullObjectId;
    }
    if ((member->flags & AcDbStub::isEntity) == 0)
    {
        return Acad::eNotAnEntity;
    }
    return m_internals->add(member, own) ? Acad::eOk : Acad::eAlreadyInGroup;
}

const ACHAR* AcDbGroup::description() const
{
    return m_internals->description.c_str();
}
bool AcDbGroup::isSelectable() const
{
    return m_internals->selectable;
}
bool AcDbGroup::isAnonymous() const
{
    return m_internals->anonymous;
}

Adesk::UInt32 AcDbGroup::numEntities() const
{
    AcDbObjectIdArray ids;
    return allEntityIds(ids);
}

Adesk::UInt32 AcDbGroup::allEntityIds(AcDbObjectIdArray& ids) const
{
    assertReadEnabled("AcDbGroup::allEntityIds");
    Adesk::UInt32 count = 0;
    m_internals->forEach(
        [&](AcDbStub& stub)
        {
            if (!stub.erased())
            {
                ids.append(AcDbObjectId(&stub));
                ++count;
            }
        });
    return count;
}
