#include "host/plot/ink.h"

#include <algorithm>
#include <cmath>

#include "host/plot/windows/typeface.h"

namespace host::plot
{
namespace
{
Gdiplus::Color colorOf(Color color)
{
    const auto part = [](double value) { return BYTE(std::lround(value * 255)); };
    return {part(color.red), part(color.green), part(color.blue)};
}

Gdiplus::PointF pointOf(const AcGePoint3d& point)
{
    return {Gdiplus::REAL(point.x), Gdiplus::REAL(point.y)};
}

std::vector<Gdiplus::PointF> pointsOf(const Points& points)
{
    std::vector<Gdiplus::PointF> converted;
    std::ranges::transform(points, std::back_inserter(converted), pointOf);
    return converted;
}

class PictureInk : public Ink
{
public:
    explicit PictureInk(const Sheet& sheet)
        : m_bitmap(INT(std::lround(sheet.width * dotsOf(sheet))),
                   INT(std::lround(sheet.height * dotsOf(sheet))), PixelFormat24bppRGB),
          m_page(&m_bitmap)
    {
        m_page.Clear(colorOf(white));
        m_page.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        // A whole coordinate lies between two pixels.
        m_page.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
        m_page.ScaleTransform(Gdiplus::REAL(dotsOf(sheet)), Gdiplus::REAL(dotsOf(sheet)));
    }

    void stroke(const Points& points, bool closed, double width, Color color) override;
    void fill(const std::vector<Points>& loops, Color color) override;
    void disc(const AcGePoint3d& centre, double diameter, Color color) override;
    void text(const AcGePoint3d& start, const AcGeVector3d& along, const AcGeVector3d& up,
              std::wstring_view text, Color color) override;
    Result<std::string> finish() override { return pngOf(m_bitmap); }

private:
    void fillPath(const Gdiplus::GraphicsPath& path, Color color);

    Drawing m_drawing;
    Gdiplus::Bitmap m_bitmap;
    Gdiplus::Graphics m_page;
};

void PictureInk::stroke(const Points& points, bool closed, double width, Color color)
{
    const std::vector<Gdiplus::PointF> line = pointsOf(points);
    if (std::ranges::all_of(line, [&](const auto& point) { return point.Equals(line[0]); }))
    {
        // The library's pen draws nothing if it does not move, so a disc draws the dot.
        return points.empty() ? void() : disc(points[0], width, color);
    }
    Gdiplus::Pen pen(colorOf(color), Gdiplus::REAL(width));
    pen.SetLineCap(Gdiplus::LineCapRound, Gdiplus::LineCapRound, Gdiplus::DashCapRound);
    pen.SetLineJoin(Gdiplus::LineJoinRound);
    closed&& line.size() > 2 ? m_page.DrawPolygon(&pen, line.data(), INT(line.size()))
                             : m_page.DrawLines(&pen, line.data(), INT(line.size()));
}

void PictureInk::fill(const std::vector<Points>& loops, Color color)
{
    Gdiplus::GraphicsPath path(Gdiplus::FillModeAlternate);
    for (const Points& loop : loops)
    {
        path.AddPolygon(pointsOf(loop).data(), INT(loop.size()));
    }
    fillPath(path, color);
}

void PictureInk::fillPath(const Gdiplus::GraphicsPath& path, Color color)
{
    const Gdiplus::SolidBrush brush(colorOf(color));
    m_page.FillPath(&brush, &path);
}

void PictureInk::disc(const AcGePoint3d& centre, double diameter, Color color)
{
    Gdiplus::GraphicsPath path;
    path.AddEllipse(Gdiplus::REAL(centre.x - diameter / 2), Gdiplus::REAL(centre.y - diameter / 2),
                    Gdiplus::REAL(diameter), Gdiplus::REAL(diameter));
    fillPath(path, color);
}

void PictureInk::text(const AcGePoint3d& start, const AcGeVector3d& along, const AcGeVector3d& up,
                      std::wstring_view text, Color color)
{
    const std::unique_ptr<Gdiplus::GraphicsPath> path = outlines(text);
    const Gdiplus::Matrix toSheet(Gdiplus::REAL(along.x), Gdiplus::REAL(along.y),
                                  Gdiplus::REAL(up.x), Gdiplus::REAL(up.y), Gdiplus::REAL(start.x),
                                  Gdiplus::REAL(start.y));
    path->Transform(&toSheet);
    fillPath(*path, color);
}
}  // namespace

bool canWrite(FileKind kind)
{
    return kind == FileKind::png;
}

std::unique_ptr<Ink> openInk(const Sheet& sheet)
{
    return std::make_unique<PictureInk>(sheet);
}
}  // namespace host::plot
