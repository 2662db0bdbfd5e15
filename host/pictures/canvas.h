// Draws the pictures of dialogs. All measures are pixels of a screen of 96 dots to the inch, from
// the upper left corner.
#pragma once

#include <string>
#include <string_view>

#include "host/colors/color.h"
#include "host/png/cairo/surfacebytes.h"

namespace host
{
// Colours of a dialog.
inline constexpr Color face{0.941, 0.941, 0.941};
inline constexpr Color shadow{0.627, 0.627, 0.627};
inline constexpr Color edge{0.478, 0.478, 0.478};
inline constexpr Color dimmed{0.55, 0.55, 0.55};
inline constexpr Color accent{0, 0.471, 0.843};

// A rectangle: its upper left corner, width and height. Y points down.
struct Box
{
    double x;
    double y;
    double width;
    double height;

    double middle() const { return y + height / 2; }
    Box inset(double by) const { return {x + by, y + by, width - 2 * by, height - 2 * by}; }
};

// A picture that is drawn. Later shapes cover earlier shapes. `scale` is the number of the
// picture's dots to a pixel.
class Canvas
{
public:
    // Creates a picture of `width` by `height` pixels.
    Canvas(int width, int height, double scale);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    void fill(const Box& box, Color color);
    void frame(const Box& box, Color color);  // draws a frame of one pixel within the box
    void line(double x1, double y1, double x2, double y2, Color color, double width = 1);
    void circle(double x, double y, double radius, Color color, bool filled);
    void triangleDown(double x, double y, double size, Color color);
    // Draws a text from `x` on, vertically centred on `middle` and cut off at the box.
    void text(const Box& box, double x, double middle, std::wstring_view text, Color color);
    void veil(const Box& box);  // fades everything in the box into the face
    void image(const Box& box, cairo_surface_t* image);

    double textWidth(std::wstring_view text) const;
    double textHeight() const;

    // Returns the bytes of a PNG file, or a failure when memory ran out.
    Result<std::string> png() const { return pngOf(m_surface); }

private:
    void color(Color color);

    cairo_surface_t* m_surface;
    cairo_t* m_cairo;
};
}  // namespace host
