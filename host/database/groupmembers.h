// The members of a group.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dbgroup.h"
#include "host/database/stub.h"

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
    // Calls `take` with each member in the order in which they joined, including erased ones.
    template <class Take>
    void forEach(const Take& take) const
    {
        for (const Run& run : m_runs)
        {
            AcDbStub* member = run.first;
            for (std::size_t i = 0; i < run.count; ++i)
            {
                take(*member);
                member = host::StubArena::behind(member);
            }
        }
    }

private:
    // Members that joined one after another and whose stubs lie side by side.
    struct Run
    {
        AcDbStub* first;
        std::size_t count;
    };

    bool addLikeTheLast(AcDbStub* member);
    void join(AcDbStub* member)
    {
        if (member != m_next)
        {
            m_runs.push_back({member, 0});
        }
        ++m_runs.back().count;
        m_next = host::StubArena::behind(member);
    }

    std::vector<Run> m_runs;
    AcDbStub* m_next = nullptr;  // the stub that would make the last run longer
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
