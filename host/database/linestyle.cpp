#include "host/database/linestyle.h"

#include <algorithm>
#include <functional>

#include "host/database/entitystyle.h"

namespace host
{
std::size_t LineStyleHash::operator()(const LineStyle& style) const
{
    const std::size_t parts[] = {std::hash<const void*>()(style.owner),
                                 std::hash<const void*>()(style.layer),
                                 std::hash<double>()(style.normal.x + 3 * style.normal.y),
                                 std::size_t(style.color), std::size_t(style.reactors)};
    std::size_t hash = 0;
    for (std::size_t part : parts)
    {
        hash = hash * 1000003 + part;
    }
    return hash;
}

std::uint32_t LineStyles::internStyleOf(const AcDbEntity& entity)
{
    const bool isLast = m_last < m_styles.size() && EntityStyle::hasStyle(entity, m_styles[m_last]);
    return isLast ? m_last : find(EntityStyle::styleOf(entity));
}

[[gnu::noinline]] std::uint32_t LineStyles::find(const LineStyle& style)
{
    const auto found = m_numbers.find(style);
    if (found != m_numbers.end())
    {
        m_last = found->second;
        return m_last;
    }
    if (m_styles.size() >= m_most)
    {
        return none;
    }
    m_last = std::uint32_t(m_styles.size());
    m_numbers.emplace(style, m_last);
    m_styles.push_back(style);
    return m_last;
}

std::uint32_t ReactorLists::with(std::uint32_t number, AcDbStub* reactor)
{
    if (m_last.reactor == reactor && m_last.from == number)
    {
        return m_last.result;
    }
    m_last = {number, reactor, find(number, reactor)};
    return m_last.result;
}

std::uint32_t ReactorLists::find(std::uint32_t number, AcDbStub* reactor)
{
    std::vector<AcDbStub*> list = m_lists[number];
    list.push_back(reactor);
    // Groups are few, and the list is nearly always the newest one.
    const auto found = std::find(m_lists.rbegin(), m_lists.rend(), list);
    if (found != m_lists.rend())
    {
        return std::uint32_t(m_lists.rend() - found - 1);
    }
    m_lists.push_back(std::move(list));
    return std::uint32_t(m_lists.size() - 1);
}

bool ReactorLists::contains(std::uint32_t number, const AcDbStub* reactor) const
{
    const std::vector<AcDbStub*>& list = m_lists[number];
    return std::find(list.begin(), list.end(), reactor) != list.end();
}
}  // namespace host
