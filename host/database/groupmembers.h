// What a group holds.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dbgroup.h"

// Every member has the group among its persistent reactors, which tells at once what a search
// through a million members would; so no member is in it twice.
struct AcDbGroup::Internals
{
public:
    static Internals& of(const AcDbGroup& group) { return *group.m_internals; }

    std::wstring description;
    bool selectable = true;
    bool anonymous = false;

    // False, and nothing done, when the stub is a member already. It is an entity's.
    bool add(AcDbStub* member, AcDbStub* group);
    // As they joined, erased ones as well.
    const std::vector<AcDbStub*>& inOrder() const { return m_members; }

private:
    bool addLikeTheLast(AcDbStub* member);

    std::vector<AcDbStub*> m_members;
    // Of the line that joined last. The next is mostly like it: a line of that style is not in the
    // group yet, as members have the group among their reactors.
    std::uint32_t m_styleBefore = UINT32_MAX;
    std::uint32_t m_styleWithin = 0;
};

namespace host
{
using GroupMembers = AcDbGroup::Internals;
}  // namespace host
