#include "host/plot/paper.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace host::plot
{
namespace
{
// All sizes are in millimetres.
const double longSide = 420;
const double shortestSide = 60;
const double margin = 10;
const double lineWidth = 0.25;
const double dotDiameter = 0.6;

double scaleOf(const ViewBox& box)
{
    const double longer = std::max(box.width(), box.height());
    return longer > 0 ? (longSide - 2 * margin) / longer : 1;
}

double sideOf(double size, double scale)
{
    return std::clamp(size * scale + 2 * margin, shortestSide, longSide);
}
}  // namespace

Paper::Paper(FileKind kind, const AcGeMatrix3d& toView, const ViewBox& box)
    : m_toView(toView),
      m_box(box),
      m_scale(scaleOf(box)),
      m_sheet{kind, sideOf(box.width(), m_scale), sideOf(box.height(), m_scale)},
      m_ink(openInk(m_sheet))
{
}

AcGePoint3d Paper::onSheet(const AcGePoint3d& world) const
{
    const AcGePoint3d seen = m_toView * world;
    const double middleX = (m_box.left + m_box.right) / 2;
    const double middleY = (m_box.bottom + m_box.top) / 2;
    return {m_sheet.width / 2 + (seen.x - middleX) * m_scale,
            m_sheet.height / 2 - (seen.y - middleY) * m_scale, 0};
}

AcGeVector3d Paper::onSheet(const AcGeVector3d& world) const
{
    const AcGeVector3d seen = m_toView * world;
    return {seen.x * m_scale, -seen.y * m_scale, 0};
}

Points Paper::onSheet(const Points& points) const
{
    Points moved;
    moved.reserve(points.size());
    std::ranges::transform(points, std::back_inserter(moved),
                           [this](const AcGePoint3d& point) { return onSheet(point); });
    return moved;
}

void Paper::path(const Points& points, bool closed, Color color)
{
    m_ink->stroke(onSheet(points), closed, lineWidth, color);
}

void Paper::area(const std::vector<Points>& loops, Color color)
{
    std::vector<Points> moved;
    for (const Points& loop : loops)
    {
        moved.push_back(onSheet(loop));
    }
    m_ink->fill(moved, color);
}

void Paper::dot(const AcGePoint3d& point, Color color)
{
    m_ink->disc(onSheet(point), dotDiameter, color);
}

// Draws the ray to beyond the farthest corner of the sheet, whatever its direction is.
void Paper::ray(const AcGePoint3d& from, const AcGeVector3d& along, bool both, Color color)
{
    const AcGePoint3d start = onSheet(from);
    const AcGeVector3d direction = onSheet(along);
    const double length = direction.length();
    if (length == 0)
    {
        return;
    }
    const AcGeVector3d unit = direction / length;
    const AcGePoint3d middle(m_sheet.width / 2, m_sheet.height / 2, 0);
    const double nearest = unit.dotProduct(middle - start);
    const AcGePoint3d foot = start + unit * nearest;
    const double reach = m_sheet.width + m_sheet.height;
    const AcGePoint3d end = foot + unit * reach;
    const AcGePoint3d begin = both || nearest > reach ? foot - unit * reach : start;
    // A ray that misses the sheet is not drawn, so that the library does not get numbers that are
    // too large for it.
    if ((foot - middle).length() < reach && (both || nearest > -reach))
    {
        m_ink->stroke({begin, end}, false, lineWidth, color);
    }
}

void Paper::text(const TextLine& line, Color color)
{
    const AcGePoint3d origin = onSheet(line.origin);
    const AcGeVector3d along = onSheet(line.along);
    const AcGeVector3d up = onSheet(line.up);
    // A text of no size and a text in a plane seen from its edge are invisible.
    if (std::abs(along.x * up.y - along.y * up.x) < 1e-9)
    {
        return;
    }
    const AcGePoint3d start =
        origin - along * (line.across * textWidth(line.text)) - up * line.above;
    m_ink->text(start, along, up, line.text, color);
}

void Extents::add(std::span<const AcGePoint3d> points)
{
    for (const AcGePoint3d& point : points)
    {
        const AcGePoint3d at = m_toView * point;
        if (m_empty)
        {
            m_box = {at.x, at.y, at.x, at.y};
            m_empty = false;
        }
        m_box = {std::min(m_box.left, at.x), std::min(m_box.bottom, at.y),
                 std::max(m_box.right, at.x), std::max(m_box.top, at.y)};
    }
}

void Extents::ray(const AcGePoint3d& from, const AcGeVector3d&, bool, Color)
{
    add({&from, 1});
}

double Extents::widthOf(std::wstring_view text) const
{
    return textWidth(text);
}
}  // namespace host::plot
