#include <algorithm>
#include <cmath>

#include "host/basics/angle.h"
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
const double descent = 0.3;  // the depth of letters below the line, in heights of a capital

// Returns the height of the text's point above the line, in heights of a capital.
double aboveLine(int horizontal, int vertical)
{
    if (horizontal == schema::text::middleMode || vertical == schema::text::middleVertically)
    {
        return 0.5;
    }
    return vertical == schema::text::bottomMode ? -descent
           : vertical == schema::text::topMode  ? 1
                                                : 0;
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

void place(TextLine& line, const schema::text::Words& words)
{
    const int mode = words.horizontalMode;
    line.origin = words.position;
    if (mode == schema::text::alignedMode || mode == schema::text::fitMode)
    {
        stretch(line, words.alignment.value_or(AcGePoint3d()) - words.position,
                mode == schema::text::alignedMode);
        return;
    }
    if (mode != schema::text::leftMode || words.verticalMode != schema::text::baselineMode)
    {
        line.origin = words.alignment.value_or(words.position);
    }
    const bool isCentred = mode == schema::text::centreMode || mode == schema::text::middleMode;
    line.across = mode == schema::text::rightMode ? 1 : isCentred ? 0.5 : 0;
    line.above = aboveLine(mode, words.verticalMode);
}

void drawWords(const schema::text::Words& words, const std::wstring& contents, const Pen& pen)
{
    const double angle = toRadians(words.rotation);
    TextLine line;
    line.text = withoutPercentCodes(contents);
    line.along =
        AcGeVector3d(std::cos(angle), std::sin(angle), 0) * (words.height * words.widthFactor);
    line.up = AcGeVector3d(-std::sin(angle), std::cos(angle), 0) * words.height;
    place(line, words);
    line.up =
        line.up + line.along.normal() * (line.up.length() * std::tan(toRadians(words.oblique)));
    const int flags = words.generation;
    line.along = (flags & schema::text::backwardsFlag) != 0 ? -line.along : line.along;
    line.up = (flags & schema::text::upsideDownFlag) != 0 ? -line.up : line.up;
    pen.withinPlane(words.normal).text(line);
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

// A long text comes in pieces, whose ends may cut a character.
std::wstring contents(const schema::paragraphs::Paragraphs& text, const dxf::CodePage& codePage)
{
    std::string bytes;
    for (const std::string_view part : text.parts)
    {
        bytes += part;
    }
    bytes += text.lastPart;
    return codePage.decode(bytes);
}

// Returns the direction of a text [wcs]. Its angle counts only if it has no direction vector.
AcGeVector3d directionOf(const schema::paragraphs::Paragraphs& text)
{
    return text.direction && text.direction->lengthSqrd() > 0
               ? *text.direction / text.direction->length()
               : Ocs(text.normal).directionWcs(toRadians(text.rotation));
}
}  // namespace

void drawText(const EntityTags& entity, const Pen& pen)
{
    if (entity.has(schema::text::contents))
    {
        const schema::text::Words words = entity.read(schema::text::words);
        drawWords(words, words.contents, pen);
    }
}

void drawAttribute(const EntityTags& entity, const Pen& pen)
{
    const schema::attribute::Attribute attribute = entity.read(schema::attribute::table);
    if ((attribute.flags & schema::attribute::invisibleFlag) == 0 &&
        entity.has(schema::text::contents))
    {
        drawWords(attribute, attribute.contents, pen);
    }
}

void drawConstantAttribute(const EntityTags& entity, const Pen& pen)
{
    const int flags = entity.read(schema::attribute::definition).flags;
    if ((flags & schema::attribute::constantFlag) != 0)
    {
        drawAttribute(entity, pen);
    }
}

// Draws an attribute definition outside of blocks, where it shows its tag.
void drawAttributeDefinition(const EntityTags& entity, const Pen& pen)
{
    const schema::attribute::Attribute attribute = entity.read(schema::attribute::definition);
    drawWords(attribute, entity.source().codePage.decode(trimmed(attribute.tag)), pen);
}

void drawParagraphs(const EntityTags& entity, const Pen& pen)
{
    const schema::paragraphs::Paragraphs text = entity.read(schema::paragraphs::table);
    const double width = text.height > 0 ? text.width / text.height : 0;
    std::vector<std::wstring> lines;
    for (const std::wstring& paragraph : paragraphs(contents(text, entity.source().codePage)))
    {
        std::ranges::move(wrapped(paragraph, width), std::back_inserter(lines));
    }
    const int attachment = std::clamp(text.attachment, 1, 9) - 1;
    const double spacing = 5.0 / 3.0 * text.lineSpacing;  // from line to line, in heights
    const double all = spacing * double(lines.size() - 1) + 1;
    TextLine line;
    line.along = directionOf(text) * text.height;
    line.up = Ocs(text.normal).normal().crossProduct(line.along);
    line.across = attachment % 3 / 2.0;
    const int row = attachment / 3;
    double down = 1 - all * row / 2.0;  // from the given point down to the first line
    for (const std::wstring& words : lines)
    {
        line.text = words;
        line.origin = text.position - line.up * down;
        down += spacing;
        pen.text(line);
    }
}
}  // namespace host::plot
