#include "host/pictures/canvas.h"

#include <cmath>
#include <numbers>

#include "host/windows/text.h"

namespace host
{
namespace
{
// Stands for "MS Shell Dlg" with 8 points: a free typeface with the same widths as Windows' Arial.
const char fontName[] = "Liberation Sans";
const double fontSize = 8 * 96 / 72.0;
}  // namespace

Canvas::Canvas(int width, int height, double scale)
    : m_surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, int(std::ceil(width * scale)),
                                           int(std::ceil(height * scale)))),
      m_cairo(cairo_create(m_surface))
{
    cairo_scale(m_cairo, scale, scale);
    cairo_select_font_face(m_cairo, fontName, CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(m_cairo, fontSize);
}

Canvas::~Canvas()
{
    cairo_destroy(m_cairo);
    cairo_surface_destroy(m_surface);
}

void Canvas::color(Color color)
{
    cairo_set_source_rgb(m_cairo, color.red, color.green, color.blue);
}

void Canvas::fill(const Box& box, Color color)
{
    this->color(color);
    cairo_rectangle(m_cairo, box.x, box.y, box.width, box.height);
    cairo_fill(m_cairo);
}

void Canvas::frame(const Box& box, Color color)
{
    this->color(color);
    cairo_set_line_width(m_cairo, 1);
    const Box inner = box.inset(0.5);
    cairo_rectangle(m_cairo, inner.x, inner.y, inner.width, inner.height);
    cairo_stroke(m_cairo);
}

void Canvas::line(double x1, double y1, double x2, double y2, Color color, double width)
{
    this->color(color);
    cairo_set_line_width(m_cairo, width);
    cairo_move_to(m_cairo, x1, y1);
    cairo_line_to(m_cairo, x2, y2);
    cairo_stroke(m_cairo);
}

void Canvas::circle(double x, double y, double radius, Color color, bool filled)
{
    this->color(color);
    cairo_set_line_width(m_cairo, 1);
    cairo_arc(m_cairo, x, y, radius, 0, 2 * std::numbers::pi);
    filled ? cairo_fill(m_cairo) : cairo_stroke(m_cairo);
}

void Canvas::triangleDown(double x, double y, double size, Color color)
{
    this->color(color);
    cairo_move_to(m_cairo, x - size, y - size / 2);
    cairo_line_to(m_cairo, x + size, y - size / 2);
    cairo_line_to(m_cairo, x, y + size / 2);
    cairo_close_path(m_cairo);
    cairo_fill(m_cairo);
}

void Canvas::text(const Box& box, double x, double middle, std::wstring_view text, Color color)
{
    cairo_font_extents_t font;
    cairo_font_extents(m_cairo, &font);
    cairo_save(m_cairo);
    cairo_rectangle(m_cairo, box.x, box.y, box.width, box.height);
    cairo_clip(m_cairo);
    this->color(color);
    cairo_move_to(m_cairo, x, middle + (font.ascent - font.descent) / 2);
    cairo_show_text(m_cairo, toUtf8(text).c_str());
    cairo_restore(m_cairo);
    // The library's current point is at the end of the text. Without a new path, a circle would
    // begin with a line from there.
    cairo_new_path(m_cairo);
}

void Canvas::veil(const Box& box)
{
    cairo_set_source_rgba(m_cairo, face.red, face.green, face.blue, 0.65);
    cairo_rectangle(m_cairo, box.x, box.y, box.width, box.height);
    cairo_fill(m_cairo);
}

void Canvas::image(const Box& box, cairo_surface_t* image)
{
    const double width = cairo_image_surface_get_width(image);
    const double height = cairo_image_surface_get_height(image);
    cairo_save(m_cairo);
    cairo_set_source_surface(m_cairo, image, box.x + (box.width - width) / 2,
                             box.y + (box.height - height) / 2);
    cairo_pattern_set_filter(cairo_get_source(m_cairo), CAIRO_FILTER_NEAREST);
    cairo_rectangle(m_cairo, box.x, box.y, box.width, box.height);
    cairo_fill(m_cairo);
    cairo_restore(m_cairo);
}

double Canvas::textWidth(std::wstring_view text) const
{
    cairo_text_extents_t extents;
    cairo_text_extents(m_cairo, toUtf8(text).c_str(), &extents);
    return extents.x_advance;
}

double Canvas::textHeight() const
{
    cairo_font_extents_t font;
    cairo_font_extents(m_cairo, &font);
    return font.ascent + font.descent;
}
}  // namespace host
