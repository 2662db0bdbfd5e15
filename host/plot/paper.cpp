#include "host/plot/paper.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>

#include <algorithm>
#include <cmath>

#include "host/plot/typeface.h"

namespace host::plot
{
namespace
{
// Millimetres, but for the picture.
const double longSide = 420;
const double shortestSide = 60;
const double margin = 10;
const double lineWidth = 0.25;
const double dotDiameter = 0.6;
const double picturePixels = 2400;  // of the longer side
const double pointsInMillimetre = 72 / 25.4;

cairo_status_t append(void* bytes, const unsigned char* data, unsigned length)
{
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}
}  // namespace

Paper::Paper(FileKind kind, const AcGeMatrix3d& toView, const Window& window)
    : m_toView(toView), m_window(window), m_kind(kind)
{
    const double longer = std::max(window.width(), window.height());
    m_scale = longer > 0 ? (longSide - 2 * margin) / longer : 1;
    const auto side = [&](double size)
    { return std::clamp(size * m_scale + 2 * margin, shortestSide, longSide); };
    m_width = side(window.width());
    m_height = side(window.height());
    open(kind);
    use(white);
    cairo_paint(m_cairo);
    cairo_set_line_width(m_cairo, lineWidth);
    cairo_set_line_cap(m_cairo, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(m_cairo, CAIRO_LINE_JOIN_ROUND);
    cairo_set_fill_rule(m_cairo, CAIRO_FILL_RULE_EVEN_ODD);
}

void Paper::open(FileKind kind)
{
    const double units =
        kind == FileKind::png ? picturePixels / std::max(m_width, m_height) : pointsInMillimetre;
    const double width = m_width * units;
    const double height = m_height * units;
    switch (kind)
    {
        case FileKind::png:
            m_surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, int(std::lround(width)),
                                                   int(std::lround(height)));
            break;
        case FileKind::pdf:
            m_surface = cairo_pdf_surface_create_for_stream(append, &m_bytes, width, height);
            break;
        case FileKind::svg:
            m_surface = cairo_svg_surface_create_for_stream(append, &m_bytes, width, height);
            break;
    }
    m_cairo = cairo_create(m_surface);
    cairo_scale(m_cairo, units, units);
}

Paper::~Paper()
{
    cairo_destroy(m_cairo);
    cairo_surface_destroy(m_surface);
}

std::string Paper::finish()
{
    const bool good = cairo_status(m_cairo) == CAIRO_STATUS_SUCCESS;
    if (m_kind == FileKind::png && good)
    {
        cairo_surface_write_to_png_stream(m_surface, append, &m_bytes);
    }
    cairo_surface_finish(m_surface);
    return good ? std::move(m_bytes) : std::string();
}

AcGePoint3d Paper::onSheet(const AcGePoint3d& world) const
{
    const AcGePoint3d seen = m_toView * world;
    const double middleX = (m_window.left + m_window.right) / 2;
    const double middleY = (m_window.bottom + m_window.top) / 2;
    return {m_width / 2 + (seen.x - middleX) * m_scale, m_height / 2 - (seen.y - middleY) * m_scale,
            0};
}

AcGeVector3d Paper::onSheet(const AcGeVector3d& world) const
{
    const AcGeVector3d seen = m_toView * world;
    return {seen.x * m_scale, -seen.y * m_scale, 0};
}

void Paper::use(Color color)
{
    cairo_set_source_rgb(m_cairo, color.red, color.green, color.blue);
}

void Paper::follow(const Points& points, bool closed)
{
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        const AcGePoint3d at = onSheet(points[i]);
        i == 0 ? cairo_move_to(m_cairo, at.x, at.y) : cairo_line_to(m_cairo, at.x, at.y);
    }
    if (closed)
    {
        cairo_close_path(m_cairo);
    }
}

void Paper::stroke(Color color)
{
    use(color);
    cairo_stroke(m_cairo);
}

void Paper::path(const Points& points, bool closed, Color color)
{
    follow(points, closed);
    stroke(color);
}

void Paper::area(const std::vector<Points>& loops, Color color)
{
    for (const Points& loop : loops)
    {
        follow(loop, true);
    }
    use(color);
    cairo_fill(m_cairo);
}

void Paper::dot(const AcGePoint3d& point, Color color)
{
    const AcGePoint3d at = onSheet(point);
    cairo_arc(m_cairo, at.x, at.y, dotDiameter / 2, 0, 2 * M_PI);
    use(color);
    cairo_fill(m_cairo);
}

// To beyond the farthest corner of the sheet, whichever way it goes.
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
    const AcGeVector3d toMiddle = AcGePoint3d(m_width / 2, m_height / 2, 0) - start;
    const double nearest = unit.dotProduct(toMiddle);
    const AcGePoint3d foot = start + unit * nearest;
    const double reach = m_width + m_height;
    const AcGePoint3d end = foot + unit * reach;
    const AcGePoint3d begin = both || nearest > reach ? foot - unit * reach : start;
    // One that lies off the sheet, or turns away from it, shows nothing; far numbers stay away
    // from the library.
    if ((foot - AcGePoint3d(m_width / 2, m_height / 2, 0)).length() < reach &&
        (both || nearest > -reach))
    {
        cairo_move_to(m_cairo, begin.x, begin.y);
        cairo_line_to(m_cairo, end.x, end.y);
        stroke(color);
    }
}

void Paper::text(const TextLine& line, Color color)
{
    const AcGePoint3d origin = onSheet(line.origin);
    const AcGeVector3d along = onSheet(line.along);
    const AcGeVector3d up = onSheet(line.up);
    // Seen from its edge, or of no size, a text is not to be seen.
    if (std::abs(along.x * up.y - along.y * up.x) < 1e-9)
    {
        return;
    }
    const AcGePoint3d start =
        origin - along * (line.across * textWidth(line.text)) - up * line.above;
    const cairo_matrix_t matrix{along.x, along.y, up.x, up.y, start.x, start.y};
    cairo_save(m_cairo);
    cairo_transform(m_cairo, &matrix);
    use(color);
    showText(m_cairo, line.text);
    cairo_restore(m_cairo);
}

void Extents::add(const AcGePoint3d& world)
{
    const AcGePoint3d at = m_toView * world;
    if (m_empty)
    {
        m_window = {at.x, at.y, at.x, at.y};
        m_empty = false;
    }
    m_window = {std::min(m_window.left, at.x), std::min(m_window.bottom, at.y),
                std::max(m_window.right, at.x), std::max(m_window.top, at.y)};
}

void Extents::path(const Points& points, bool, Color)
{
    std::ranges::for_each(points, [this](const AcGePoint3d& point) { add(point); });
}

void Extents::area(const std::vector<Points>& loops, Color color)
{
    for (const Points& loop : loops)
    {
        path(loop, true, color);
    }
}

void Extents::dot(const AcGePoint3d& point, Color)
{
    add(point);
}

void Extents::ray(const AcGePoint3d& from, const AcGeVector3d&, bool, Color)
{
    add(from);
}

void Extents::text(const TextLine& line, Color)
{
    const double width = textWidth(line.text);
    const AcGePoint3d start =
        line.origin - line.along * (line.across * width) - line.up * line.above;
    add(start);
    add(start + line.along * width);
    add(start + line.up);
    add(start + line.along * width + line.up);
}
}  // namespace host::plot
