#include "host/plot/windows/typeface.h"

#include "host/plot/ink.h"

namespace host::plot
{
namespace
{
constexpr Gdiplus::REAL em = 1000;

class Typeface
{
public:
    Typeface()
    {
        for (const wchar_t* name : {L"Liberation Sans", L"Arial"})
        {
            m_family = std::make_unique<Gdiplus::FontFamily>(name);
            if (m_family->IsAvailable())
            {
                break;
            }
        }
        m_format->SetFormatFlags(m_format->GetFormatFlags() |
                                 Gdiplus::StringFormatFlagsMeasureTrailingSpaces);
        Gdiplus::RectF letter;
        path(L"H")->GetBounds(&letter);
        m_capital = letter.Height;
    }

    // Returns the outlines in thousandths of the em. Y points down from the upper edge of the line.
    std::unique_ptr<Gdiplus::GraphicsPath> path(std::wstring_view text) const
    {
        auto path = std::make_unique<Gdiplus::GraphicsPath>(Gdiplus::FillModeWinding);
        path->AddString(text.data(), INT(text.size()), m_family.get(), style, em, Gdiplus::PointF(),
                        m_format.get());
        return path;
    }

    double width(std::wstring_view text) const
    {
        const Gdiplus::Font font(m_family.get(), em, style, Gdiplus::UnitPixel);
        Gdiplus::RectF box;
        m_page.MeasureString(text.data(), INT(text.size()), &font, Gdiplus::PointF(),
                             m_format.get(), &box);
        return box.Width / m_capital;
    }

    Gdiplus::REAL ascent() const
    {
        return em * m_family->GetCellAscent(style) / m_family->GetEmHeight(style);
    }
    Gdiplus::REAL capital() const { return m_capital; }

private:
    static constexpr INT style = Gdiplus::FontStyleRegular;

    Drawing m_drawing;
    Gdiplus::Bitmap m_sheet{1, 1};
    Gdiplus::Graphics m_page{&m_sheet};
    std::unique_ptr<Gdiplus::FontFamily> m_family;
    std::unique_ptr<Gdiplus::StringFormat> m_format{
        Gdiplus::StringFormat::GenericTypographic()->Clone()};
    Gdiplus::REAL m_capital = em;
};

const Typeface& typeface()
{
    static const Typeface typeface;
    return typeface;
}
}  // namespace

double textWidth(std::wstring_view text)
{
    return text.empty() ? 0 : typeface().width(text);
}

std::unique_ptr<Gdiplus::GraphicsPath> outlines(std::wstring_view text)
{
    std::unique_ptr<Gdiplus::GraphicsPath> path = typeface().path(text);
    const Gdiplus::REAL scale = 1 / typeface().capital();
    const Gdiplus::Matrix toCapitals(scale, 0, 0, -scale, 0, typeface().ascent() * scale);
    path->Transform(&toCapitals);
    return path;
}
}  // namespace host::plot
