#include <algorithm>
#include <cmath>

#include "host/dxf/schema/entities.h"
#include "host/dxf/schema/references.h"
#include "host/geometry/ocs.h"
#include "host/plot/entities.h"
#include "host/plot/plaintext.h"
#include "host/plot/ink.h"

namespace host::plot
{
namespace
{
enum HorizontalMode
{
    leftMode,
    centreMode,
    rightMode,
    alignedMode,
    middleMode,
    fitMode
};

enum VerticalMode
{
    baselineMode,
    bottomMode,
    middleVertically,
    topMode
};

enum TextFlag
{
    invisibleAttribute = 1,
    backwards = 2,
    upsideDown = 4
};

const double descent = 0.3;  // the depth of letters below the line, in heights of a capital

// Returns the height of the text's point above the line, in heights of a capital.
double aboveLine(int horizontal, int vertical)
{
    if (horizontal == middleMode || vertical == middleVertically)
    {
        return 0.5;
    }
    return vertical == bottomMode ? -descent : vertical == topMode ? 1 : 0;
}

// Stretches a text so that it fills the vector between its two points.
void stretch(TextLine& line, const AcGeVector3d& between, bool heightToo)
{
    const double width = textWidth(line.text);
    if (width == 0 || between.lengthSqrd() == 0)
    {
        return;
    }
    const double height = heightToo ? between.length() / width : line.up.length();
    line.along = between / width;
    line.up = AcGeVector3d(-between.y, between.x, 0) * (height / between.length());
}

void place(TextLine& line, const EntityTags& text)
{
    const int horizontal = text.integer(schema::text::horizontalMode);
    const int vertical =
        text.integer(text.type() == schema::text::table.type ? schema::text::verticalMode
                                                             : schema::attribute::verticalMode);
    line.origin = text.point(schema::text::position);
    if (horizontal == alignedMode || horizontal == fitMode)
    {
        stretch(line, text.point(schema::text::alignment) - text.point(schema::text::position),
                horizontal == alignedMode);
        return;
    }
    if (horizontal != leftMode || vertical != baselineMode)
    {
        line.origin = text.has(schema::text::alignment) ? text.point(schema::text::alignment)
                                                        : text.point(schema::text::position);
    }
    line.across = horizontal == rightMode                                ? 1
                  : horizontal == centreMode || horizontal == middleMode ? 0.5
                                                                         : 0;
    line.above = aboveLine(horizontal, vertical);
}

void drawWords(const EntityTags& text, std::wstring words, const Pen& pen)
{
    const double height = text.real(schema::text::height);
    const double angle = text.radians(schema::text::rotation);
    TextLine line;
    line.text = withoutPercentCodes(words);
    line.along = AcGeVector3d(std::cos(angle), std::sin(angle), 0) *
                 (height * text.real(schema::text::widthFactor, 1));
    line.up = AcGeVector3d(-std::sin(angle), std::cos(angle), 0) * height;
    place(line, text);
    line.up = line.up + line.along.normal() *
                            (line.up.length() * std::tan(text.radians(schema::text::oblique)));
    const int flags = text.integer(schema::text::generation);
    line.along = (flags & backwards) != 0 ? -line.along : line.along;
    line.up = (flags & upsideDown) != 0 ? -line.up : line.up;
    pen.withinPlane(text.normal()).text(line);
}

// Breaks a text at blanks so that no line is wider than `width`, in heights of a capital. Only a
// single word may be wider.
std::vector<std::wstring> wrapped(const std::wstring& text, double width)
{
    std::vector<std::wstring> lines(1);
    std::size_t at = 0;
    while (at < text.size())
    {
        const std::size_t blank = std::min(text.find(L' ', at + 1), text.size());
        const std::wstring word = text.substr(at, blank - at);
        if (!lines.back().empty() && width > 0 && textWidth(lines.back() + word) > width)
        {
            lines.push_back(word.substr(word.find_first_not_of(L' ') == 1 ? 1 : 0));
        }
        else
        {
            lines.back() += word;
        }
        at = blank;
    }
    return lines;
}

std::wstring contents(const EntityTags& text, const dxf::CodePage& codePage)
{
    std::string bytes;  // a long text comes in pieces, whose ends may cut a character
    for (const dxf::Tag& tag : text.all())
    {
        bytes += tag.code == schema::paragraphs::part ? tag.value : std::string_view();
    }
    for (const dxf::Tag& tag : text.all())
    {
        bytes += tag.code == schema::paragraphs::lastPart ? tag.value : std::string_view();
    }
    return codePage.decode(bytes);
}

// Returns the direction of a text [wcs]. Its angle counts only if it has no direction vector.
AcGeVector3d directionOf(const EntityTags& text)
{
    const AcGeVector3d direction = text.point(schema::paragraphs::direction).asVector();
    return text.has(schema::paragraphs::direction) && direction.lengthSqrd() > 0
               ? direction / direction.length()
               : Ocs(text.normal()).directionWcs(text.radians(schema::paragraphs::rotation));
}
}  // namespace

void drawText(const EntityTags& text, const dxf::CodePage& codePage, const Pen& pen)
{
    if (text.type() == "ATTRIB" &&
        (text.integer(schema::attribute::flags) & invisibleAttribute) != 0)
    {
        return;
    }
    for (const dxf::Tag& tag : text.all())
    {
        if (tag.code == schema::text::contents)
        {
            drawWords(text, codePage.decode(tag.value), pen);
            return;
        }
    }
}

// Draws an attribute definition outside of blocks, where it shows its tag.
void drawAttributeDefinition(const EntityTags& text, const dxf::CodePage& codePage, const Pen& pen)
{
    drawWords(text, codePage.decode(text.text(schema::attribute::tag)), pen);
}

void drawParagraphs(const EntityTags& text, const dxf::CodePage& codePage, const Pen& pen)
{
    const double height = text.real(schema::paragraphs::height);
    const double width = height > 0 ? text.real(schema::paragraphs::width) / height : 0;
    std::vector<std::wstring> lines;
    for (const std::wstring& paragraph : paragraphs(contents(text, codePage)))
    {
        std::ranges::move(wrapped(paragraph, width), std::back_inserter(lines));
    }
    const int attachment = std::clamp(text.integer(schema::paragraphs::attachment, 1), 1, 9) - 1;
    const double spacing =
        5.0 / 3.0 * text.real(schema::paragraphs::lineSpacing, 1);  // from line to line, in heights
    const double all = spacing * double(lines.size() - 1) + 1;
    TextLine line;
    line.along = directionOf(text) * height;
    line.up = Ocs(text.normal()).normal().crossProduct(line.along);
    line.across = attachment % 3 / 2.0;
    const int row = attachment / 3;
    double down = 1 - all * row / 2.0;  // from the given point down to the first line
    for (const std::wstring& words : lines)
    {
        line.text = words;
        line.origin = text.point(schema::paragraphs::position) - line.up * down;
        down += spacing;
        pen.text(line);
    }
}
}  // namespace host::plot
