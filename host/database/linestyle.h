// The properties that packed lines have in common. Each combination is kept once.
#pragma once

#include <cstdint>
#include <deque>
#include <unordered_map>
#include <vector>

#include "dbmain.h"
#include "host/database/stub.h"

namespace host
{
// Every property of a line except its two points.
struct LineStyle
{
    AcDbStub* owner = nullptr;
    AcDbStub* layer = nullptr;
    AcDbStub* linetype = nullptr;
    AcGeVector3d normal{0, 0, 1};
    double linetypeScale = 1;
    std::uint32_t reactors = 0;
    std::uint16_t color = 256;
    std::int16_t lineWeight = -1;
    bool invisible = false;

    bool operator==(const LineStyle& other) const
    {
        return owner == other.owner && layer == other.layer && linetype == other.linetype &&
               normal.x == other.normal.x && normal.y == other.normal.y &&
               normal.z == other.normal.z && linetypeScale == other.linetypeScale &&
               reactors == other.reactors && color == other.color &&
               lineWeight == other.lineWeight && invisible == other.invisible;
    }
};

struct LineStyleHash
{
    std::size_t operator()(const LineStyle& style) const;
};

// Numbers the styles. Neighbouring lines mostly have the same style, so the last answer is tried
// first. A style is [borrowed] until the next one is interned.
class LineStyles
{
public:
    static constexpr std::uint32_t none = UINT32_MAX;

    // Return the number of a style, or of that of an entity, of which a copy is made only when it
    // is new. Return `none` for a new style when there are too many.
    std::uint32_t intern(const LineStyle& style)
    {
        return m_last < m_styles.size() && m_styles[m_last] == style ? m_last : find(style);
    }
    std::uint32_t internStyleOf(const AcDbEntity& entity);
    const LineStyle& operator[](std::uint32_t number) const { return m_styles[number]; }

    // Sets how many styles there may be.
    void limit(std::uint32_t most) { m_most = most; }

private:
    std::uint32_t find(const LineStyle& style);

    std::vector<LineStyle> m_styles;
    std::unordered_map<LineStyle, std::uint32_t, LineStyleHash> m_numbers;
    std::uint32_t m_most = AcDbStub::mostStyles;
    std::uint32_t m_last = none;
};

// Numbers the lists of persistent reactors; the number 0 is the empty list. A list is [borrowed]
// and good as long as this object lives.
class ReactorLists
{
public:
    ReactorLists() : m_lists(1) {}
    // Returns the number of the list that results from adding a reactor at the end of list
    // `number`.
    std::uint32_t with(std::uint32_t number, AcDbStub* reactor);
    const std::vector<AcDbStub*>& operator[](std::uint32_t number) const { return m_lists[number]; }
    bool contains(std::uint32_t number, const AcDbStub* reactor) const;

private:
    std::uint32_t find(std::uint32_t number, AcDbStub* reactor);

    std::deque<std::vector<AcDbStub*>> m_lists;
    // The last answer. The members of a group are added one after another, so it is tried first.
    struct
    {
        std::uint32_t from = 0;
        AcDbStub* reactor = nullptr;
        std::uint32_t result = 0;
    } m_last;
};
}  // namespace host
