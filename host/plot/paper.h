// Draws shapes on a sheet of white paper.
#pragma once

#include <memory>
#include <string>

#include "gemat3d.h"
#include "host/plot/boxsink.h"
#include "host/plot/ink.h"

namespace host::plot
{
// A rectangle of the view: X points right, Y points up, drawing units.
struct ViewBox
{
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;

    double width() const { return right - left; }
    double height() const { return top - bottom; }
};

// Shows the box of a view with a margin around it. The longer side of the sheet is that of A3.
class Paper : public Sink
{
public:
    // Opens a sheet. `toView` maps [wcs] to the view.
    Paper(FileKind kind, const AcGeMatrix3d& toView, const ViewBox& box);

    void path(const Points& points, bool closed, Color color) override;
    void area(const std::vector<Points>& loops, Color color) override;
    void dot(const AcGePoint3d& point, Color color) override;
    void ray(const AcGePoint3d& from, const AcGeVector3d& along, bool both, Color color) override;
    void text(const TextLine& line, Color color) override;

    // Returns the bytes of the file, or a failure when memory ran out. No shape may be drawn
    // afterwards.
    Result<std::string> finish() { return m_ink->finish(); }

private:
    // Returns the place on the sheet in millimetres; Y points down.
    AcGePoint3d onSheet(const AcGePoint3d& world) const;
    Points onSheet(const Points& points) const;
    AcGeVector3d onSheet(const AcGeVector3d& world) const;

    AcGeMatrix3d m_toView;
    ViewBox m_box;
    double m_scale;  // millimetres to a drawing unit
    Sheet m_sheet;
    std::unique_ptr<Ink> m_ink;
};

// Measures the box of a view that the shapes take. The box is [borrowed] as long as this object
// lives.
class Extents : public BoxSink
{
public:
    explicit Extents(const AcGeMatrix3d& toView) : m_toView(toView) {}

    bool empty() const { return m_empty; }
    const ViewBox& box() const { return m_box; }

    // Counts only the point where the ray begins, because a ray has no end.
    void ray(const AcGePoint3d& from, const AcGeVector3d& along, bool both, Color color) override;

private:
    void add(std::span<const AcGePoint3d> points) override;
    double widthOf(std::wstring_view text) const override;

    AcGeMatrix3d m_toView;
    ViewBox m_box;
    bool m_empty = true;
};
}  // namespace host::plot
