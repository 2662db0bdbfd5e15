#include "dbgroup.h"

#include "host/database/access.h"

using host::ObjectAccess;

ACRX_DEFINE_MEMBERS(AcDbGroup, AcDbObject)

AcDbGroup::AcDbGroup() : m_members(new Members()) {}

AcDbGroup::AcDbGroup(const ACHAR* description, bool selectable) : m_members(new Members())
{
    m_members->description = description != nullptr ? description : L"";
    m_members->selectable = selectable;
}

AcDbGroup::~AcDbGroup()
{
    delete m_members;
}

namespace
{
bool isEntity(const AcDbStub* stub)
{
    const AcRxClass* type = host::typeOf(stub);
    return type != nullptr && type->isDerivedFrom(AcDbEntity::desc());
}

void addReactor(AcDbStub* member, AcDbStub* group)
{
    host::DatabaseCore& core = host::coreOf(member);
    if (!member->packed())
    {
        ObjectAccess::changed(*member->object) = true;
        auto& reactors = ObjectAccess::reactors(*static_cast<AcDbEntity*>(member->object));
        reactors = core.reactorLists.with(reactors, group);
        return;
    }
    host::LineStyle style = core.lineStyles[member->style];
    style.reactors = core.reactorLists.with(style.reactors, group);
    member->style = core.lineStyles.intern(style);
}
}  // namespace

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
    if (m_members->addLikeTheLast(member))
    {
        return Acad::eOk;
    }
    if (!isEntity(member))
    {
        return Acad::eNotAnEntity;
    }
    // The reactor tells at once what a search through a million members would.
    if (host::coreOf(own).reactorLists.contains(host::reactorsOf(member), own))
    {
        return Acad::eAlreadyInGroup;
    }
    const std::uint32_t before = member->style;
    addReactor(member, own);
    m_members->stubs.push_back(member);
    if (member->packed())
    {
        m_members->styleBefore = before;
        m_members->styleWithin = member->style;
    }
    return Acad::eOk;
}

bool AcDbGroup::Members::addLikeTheLast(AcDbStub* member)
{
    if (!member->packed() || member->style != styleBefore)
    {
        return false;
    }
    member->style = styleWithin;
    stubs.push_back(member);
    return true;
}

const ACHAR* AcDbGroup::description() const
{
    return m_members->description.c_str();
}
bool AcDbGroup::isSelectable() const
{
    return m_members->selectable;
}
bool AcDbGroup::isAnonymous() const
{
    return m_members->anonymous;
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
    for (AcDbStub* stub : m_members->stubs)
    {
        if (!stub->erased())
        {
            ids.append(AcDbObjectId(stub));
            ++count;
        }
    }
    return count;
}
