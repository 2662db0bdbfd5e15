#include "tests/relations/picture.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

namespace relations
{
namespace
{
double largestOf(const AcGePoint3d& point)
{
    return std::max({std::abs(point.x), std::abs(point.y), std::abs(point.z)});
}

void addLine(const GridCase& asked, const AcDbLine& line, Picture& picture)
{
    const Spot start = seenFromBase(asked, line.startPoint());
    const Spot end = seenFromBase(asked, line.endPoint());
    const bool isVertical = std::abs(end.x - start.x) < std::abs(end.y - start.y);
    const Direction direction = isVertical ? vertical : horizontal;
    const double at = start.across(direction) / asked.steps[direction];
    const double step = asked.steps[direction];
    const double off = std::max(std::abs(start.across(direction) - std::round(at) * step),
                                std::abs(end.across(direction) - std::round(at) * step));
    EXPECT_LE(off, 1e-13 + 64 * 0x1p-52 * largestNumber(asked)) << "a line off its place";
    const double from = start.along(direction);
    const double to = end.along(direction);
    picture.lines[{direction, std::llround(at)}].push_back(
        {std::min(from, to), std::max(from, to)});
}

void addLabel(const GridCase& asked, const AcDbText& text, Picture& picture)
{
    const std::wstring shown = text.textStringConst();
    const Direction direction = shown[0] == L'X' ? vertical : horizontal;
    const Spot anchor = seenFromBase(asked, text.alignmentPoint());
    const long long index = std::llround(anchor.across(direction) / asked.steps[direction]);
    const auto line = picture.lines.find({direction, index});
    if (line == picture.lines.end())
    {
        ADD_FAILURE() << "a label without a line";
        return;
    }
    const std::vector<Part>& parts = line->second;
    const double middle = (parts.front().low + parts.back().high) / 2;
    const LabelName name(direction, index, anchor.along(direction) > middle);
    const double value = std::wcstod(shown.c_str() + 2, nullptr);
    EXPECT_TRUE(picture.labels.emplace(name, value).second) << "two labels in one place";
}
}  // namespace

double largestNumber(const GridCase& asked)
{
    const AcGeMatrix3d toUcs = asked.ucs.inverse();
    double largest = largestOf(AcGePoint3d(0, 0, 0).transformBy(asked.ucs));
    for (AcGePoint3d point :
         {asked.outline[0], asked.outline[1], asked.outline[2], asked.outline[3], asked.base})
    {
        largest = std::max(largest, largestOf(point));
        largest = std::max(largest, largestOf(point.transformBy(toUcs)));
    }
    return largest;
}

Spot seenFromBase(const GridCase& asked, const AcGePoint3d& wcs)
{
    const AcGeVector3d from = wcs - asked.base;
    if (!asked.alongUcs)
    {
        return {from.x, from.y};
    }
    const auto& axes = asked.ucs.entry;
    return {from.x * axes[0][0] + from.y * axes[1][0] + from.z * axes[2][0],
            from.x * axes[0][1] + from.y * axes[1][1] + from.z * axes[2][1]};
}

Picture pictureOf(const GridCase& asked, const AcDbObjectIdArray& made)
{
    Picture picture;
    forEach<AcDbLine>(made, [&](const AcDbLine& line) { addLine(asked, line, picture); });
    for (auto& [name, parts] : picture.lines)
    {
        // The parts are sorted by their middles, because several of the overlapping bars are cut at
        // the same end.
        std::ranges::sort(parts, {}, [](const Part& part) { return part.low + part.high; });
    }
    forEach<AcDbText>(made, [&](const AcDbText& text) { addLabel(asked, text, picture); });
    return picture;
}
}  // namespace relations
