#include "host/plot/cairo/typeface.h"

#include <memory>
#include <string>

#include "host/plot/ink.h"
#include "host/windows/text.h"

namespace host::plot
{
namespace
{
// Selects the typeface without hinting, so that the width of a text is proportional to its size and
// the same in every kind of file.
void chooseFont(cairo_t* cairo)
{
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_set_font_options(cairo, options);
    cairo_font_options_destroy(options);
    cairo_select_font_face(cairo, "Liberation Sans", CAIRO_FONT_SLANT_NORMAL,
                           CAIRO_FONT_WEIGHT_NORMAL);
}

// Measures texts with a drawing context of its own.
class Ruler
{
public:
    Ruler()
        : m_surface(cairo_recording_surface_create(CAIRO_CONTENT_COLOR, nullptr),
                    cairo_surface_destroy),
          m_cairo(cairo_create(m_surface.get()), cairo_destroy)
    {
        chooseFont(m_cairo.get());
        cairo_set_font_size(m_cairo.get(), fontSize);
        m_capital = extents("H").height;
    }

    double width(const std::string& text) const { return extents(text).x_advance / m_capital; }
    double emOfCapital() const { return fontSize / m_capital; }

private:
    static constexpr double fontSize = 100;

    cairo_text_extents_t extents(const std::string& text) const
    {
        cairo_text_extents_t extents;
        cairo_text_extents(m_cairo.get(), text.c_str(), &extents);
        return extents;
    }

    std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> m_surface;
    std::unique_ptr<cairo_t, void (*)(cairo_t*)> m_cairo;
    double m_capital;
};

const Ruler& ruler()
{
    static const Ruler ruler;
    return ruler;
}
}  // namespace

double textWidth(std::wstring_view text)
{
    return ruler().width(toUtf8(text));
}

void showText(cairo_t* cairo, std::wstring_view text)
{
    chooseFont(cairo);
    cairo_matrix_t size;
    cairo_matrix_init_scale(&size, ruler().emOfCapital(), -ruler().emOfCapital());
    cairo_set_font_matrix(cairo, &size);
    cairo_move_to(cairo, 0, 0);
    cairo_show_text(cairo, toUtf8(text).c_str());
}
}  // namespace host::plot
