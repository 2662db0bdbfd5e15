#include "host/database/groupmembers.h"

#include "host/database/packing.h"

bool AcDbGroup::Internals::add(AcDbStub* member, AcDbStub* group)
{
    if (addLikeTheLast(member))
    {
        return true;
    }
    host::ObjectStore& objects = host::coreOf(group).objects();
    if (objects.hasReactor(host::reactorsOf(member), group))
    {
        return false;
    }
    const std::uint32_t before = member->style;
    objects.addReactor(member, group);
    join(member);
    if (member->packed())
    {
        m_styleBefore = before;
        m_styleWithin = member->style;
    }
    return true;
}

bool AcDbGroup::Internals::addLikeTheLast(AcDbStub* member)
{
    if (!member->packed() || member->style != m_styleBefore)
    {
        return false;
    }
    member->style = m_styleWithin;
    join(member);
    return true;
}
