// A sheet of white paper and what is drawn on it.
#pragma once

#include <cairo.h>

#include <memory>
#include <string>

#include "gemat3d.h"
#include "host/plot/sink.h"

namespace host::plot
{
enum class FileKind
{
    png,
    pdf,
    svg
};

// A rectangle of the view: X to the right, Y upwards, drawing units.
struct Window
{
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;

    double width() const { return right - left; }
    double height() const { return top - bottom; }
};

// Shows the window of a view with a margin around it. The longer side of the sheet is that of A3.
class Paper : public Sink
{
public:
    // `toView` carries WCS to the view.
    Paper(FileKind kind, const AcGeMatrix3d& toView, const Window& window);
    ~Paper();
    Paper(const Paper&) = delete;
    Paper& operator=(const Paper&) = delete;

    void path(const Points& points, bool closed, Color color) override;
    void area(const std::vector<Points>& loops, Color color) override;
    void dot(const AcGePoint3d& point, Color color) override;
    void ray(const AcGePoint3d& from, const AcGeVector3d& along, bool both, Color color) override;
    void text(const TextLine& line, Color color) override;

    // The bytes of the file; nothing can be drawn after that. Empty when memory ran out.
    std::string finish();

private:
    void open(FileKind kind);
    void follow(const Points& points, bool closed);
    void stroke(Color color);
    void use(Color color);
    AcGePoint3d onSheet(const AcGePoint3d& world) const;  // millimetres, Y downwards
    AcGeVector3d onSheet(const AcGeVector3d& world) const;

    AcGeMatrix3d m_toView;
    Window m_window;
    FileKind m_kind;
    double m_width = 0;  // millimetres
    double m_height = 0;
    double m_scale = 1;  // millimetres a unit
    std::string m_bytes;
    cairo_surface_t* m_surface = nullptr;
    cairo_t* m_cairo = nullptr;
};

// How much of a view the shapes take.
class Extents : public Sink
{
public:
    explicit Extents(const AcGeMatrix3d& toView) : m_toView(toView) {}

    bool empty() const { return m_empty; }
    const Window& window() const { return m_window; }

    void path(const Points& points, bool closed, Color color) override;
    void area(const std::vector<Points>& loops, Color color) override;
    void dot(const AcGePoint3d& point, Color color) override;
    // Ends nowhere: counts where it begins.
    void ray(const AcGePoint3d& from, const AcGeVector3d& along, bool both, Color color) override;
    void text(const TextLine& line, Color color) override;

private:
    void add(const AcGePoint3d& world);

    AcGeMatrix3d m_toView;
    Window m_window;
    bool m_empty = true;
};
}  // namespace host::plot
