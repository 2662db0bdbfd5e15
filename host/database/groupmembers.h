// The members of a group.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dbgroup.h"

// Every member has the group among its persistent reactors. This tells at once whether an entity is
// a member, without a search through a million members, so an entity never joins twice. Accessors
// return [borrowed] parts that live as long as the group.
struct AcDbGroup::Internals
{
public:
    static Internals& of(const AcDbGroup& group) { return *group.m_internals; }

    std::wstring description;
    bool selectable = true;
    bool anonymous = false;

    // Adds an entity. Returns false and does nothing if it is a member already.
    bool add(AcDbStub* member, AcDbStub* group);
    // Returns the members in the order in which they joined, including erased ones.
    const std::vector<AcDbStub*>& inOrder() const { return m_members; }

private:
    bool addLikeTheLast(AcDbStub* member);

    std::vector<AcDbStub*> m_members;
    // The styles of the line that joined last, before and after it joined. The next line mostly has
    // the same style as that line had before. A line with that style cannot be a member yet,
    // because members have the group among their reactors.
    std::uint32_t m_styleBefore = UINT32_MAX;
    std::uint32_t m_styleWithin = 0;
};

namespace host
{
using GroupMembers = AcDbGroup::Internals;
}  // namespace host
