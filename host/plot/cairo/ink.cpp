#include "host/plot/ink.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>

#include <cmath>

#include "host/png/cairo/surfacebytes.h"
#include "host/plot/cairo/typeface.h"

namespace host::plot
{
namespace
{
const double pointsInMillimetre = 72 / 25.4;

bool same(Color a, Color b)
{
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

class CairoInk : public Ink
{
public:
    explicit CairoInk(const Sheet& sheet);
    ~CairoInk() override;
    CairoInk(const CairoInk&) = delete;
    CairoInk& operator=(const CairoInk&) = delete;

    void stroke(const Points& points, bool closed, double width, Color color) override;
    void fill(const std::vector<Points>& loops, Color color) override;
    void disc(const AcGePoint3d& centre, double diameter, Color color) override;
    void text(const AcGePoint3d& start, const AcGeVector3d& along, const AcGeVector3d& up,
              std::wstring_view text, Color color) override;
    Result<std::string> finish() override;

private:
    void open(const Sheet& sheet);
    void follow(const Points& points, bool closed);
    void use(Color color);
    void strokeWaiting();

    // A page description keeps each stroke until its end, with several hundred bytes of its own.
    // Strokes that look alike wait for each other and become one.
    static constexpr int mostStrokes = 500;
    int m_waiting = 0;  // strokes in the path
    double m_width = 0;
    Color m_color{};

    FileKind m_kind;
    std::string m_bytes;
    cairo_surface_t* m_surface = nullptr;
    cairo_t* m_cairo = nullptr;
};

CairoInk::CairoInk(const Sheet& sheet) : m_kind(sheet.kind)
{
    open(sheet);
    use(white);
    cairo_paint(m_cairo);
    cairo_set_line_cap(m_cairo, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(m_cairo, CAIRO_LINE_JOIN_ROUND);
    cairo_set_fill_rule(m_cairo, CAIRO_FILL_RULE_EVEN_ODD);
}

void CairoInk::open(const Sheet& sheet)
{
    const double units = sheet.kind == FileKind::png ? dotsOf(sheet) : pointsInMillimetre;
    const double width = sheet.width * units;
    const double height = sheet.height * units;
    switch (sheet.kind)
    {
        case FileKind::png:
            m_surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, int(std::lround(width)),
                                                   int(std::lround(height)));
            break;
        case FileKind::pdf:
            m_surface = cairo_pdf_surface_create_for_stream(appendTo, &m_bytes, width, height);
            break;
        case FileKind::svg:
            m_surface = cairo_svg_surface_create_for_stream(appendTo, &m_bytes, width, height);
            break;
    }
    m_cairo = cairo_create(m_surface);
    cairo_scale(m_cairo, units, units);
}

CairoInk::~CairoInk()
{
    cairo_destroy(m_cairo);
    cairo_surface_destroy(m_surface);
}

Result<std::string> CairoInk::finish()
{
    strokeWaiting();
    if (m_kind == FileKind::png)
    {
        Result<std::string> png = pngOf(m_surface);
        if (!png)
        {
            return png;
        }
        m_bytes = std::move(*png);
    }
    cairo_surface_finish(m_surface);
    if (cairo_status(m_cairo) != CAIRO_STATUS_SUCCESS ||
        cairo_surface_status(m_surface) != CAIRO_STATUS_SUCCESS)
    {
        return Failure{"not enough memory"};
    }
    return std::move(m_bytes);
}

void CairoInk::use(Color color)
{
    cairo_set_source_rgb(m_cairo, color.red, color.green, color.blue);
}

void CairoInk::follow(const Points& points, bool closed)
{
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        i == 0 ? cairo_move_to(m_cairo, points[i].x, points[i].y)
               : cairo_line_to(m_cairo, points[i].x, points[i].y);
    }
    if (closed)
    {
        cairo_close_path(m_cairo);
    }
}

void CairoInk::stroke(const Points& points, bool closed, double width, Color color)
{
    if (m_waiting == mostStrokes || width != m_width || !same(color, m_color))
    {
        strokeWaiting();
    }
    follow(points, closed);
    m_width = width;
    m_color = color;
    ++m_waiting;
    // In a picture of dots a stroke covers the ones before it; one path would not.
    if (m_kind == FileKind::png)
    {
        strokeWaiting();
    }
}

void CairoInk::strokeWaiting()
{
    if (m_waiting == 0)
    {
        return;
    }
    use(m_color);
    cairo_set_line_width(m_cairo, m_width);
    cairo_stroke(m_cairo);
    m_waiting = 0;
}

void CairoInk::fill(const std::vector<Points>& loops, Color color)
{
    strokeWaiting();
    for (const Points& loop : loops)
    {
        follow(loop, true);
    }
    use(color);
    cairo_fill(m_cairo);
}

void CairoInk::disc(const AcGePoint3d& centre, double diameter, Color color)
{
    strokeWaiting();
    cairo_arc(m_cairo, centre.x, centre.y, diameter / 2, 0, 2 * M_PI);
    use(color);
    cairo_fill(m_cairo);
}

void CairoInk::text(const AcGePoint3d& start, const AcGeVector3d& along, const AcGeVector3d& up,
                    std::wstring_view text, Color color)
{
    strokeWaiting();
    const cairo_matrix_t matrix{along.x, along.y, up.x, up.y, start.x, start.y};
    cairo_save(m_cairo);
    cairo_transform(m_cairo, &matrix);
    use(color);
    showText(m_cairo, text);
    cairo_restore(m_cairo);
    // The library's current point is at the end of the text. Without a new path, an arc would begin
    // with a line from there.
    cairo_new_path(m_cairo);
}
}  // namespace

bool canWrite(FileKind)
{
    return true;
}

std::unique_ptr<Ink> openInk(const Sheet& sheet)
{
    return std::make_unique<CairoInk>(sheet);
}
}  // namespace host::plot
