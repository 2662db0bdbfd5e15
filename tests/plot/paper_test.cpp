#include "host/plot/paper.h"

#include <gtest/gtest.h>

#include <array>

#include "gemat3d.h"
#include "host/plot/plot.h"
#include "tests/plot/picture.h"

using namespace host::plot;
using tests::Picture;

namespace
{
const host::Color red{1, 0, 0};
const AcGeMatrix3d plan;

const unsigned whitePixel = 0xFFFFFF, redPixel = 0xFF0000;
}  // namespace

TEST(Paper, showsTheWholeWindowWithAMarginUprightAndNotMirrored)
{
    Paper paper(FileKind::png, plan, {100, 200, 140, 220});
    paper.area({{{100, 200, 0}, {110, 200, 0}, {110, 205, 0}, {100, 205, 0}}}, red);
    const Picture picture(*paper.finish());
    EXPECT_EQ(picture.width(), 2400);
    EXPECT_EQ(picture.height(), 1257);  // half as high, margins apart: 220 mm of 420
    EXPECT_EQ(picture.at(0.1, 0.1), redPixel);
    EXPECT_EQ(picture.at(0.9, 0.1), whitePixel);
    EXPECT_EQ(picture.at(0.1, 0.9), whitePixel);
    EXPECT_EQ(picture.at(0.01, 0.01), whitePixel) << "the margin";
}

TEST(Paper, theViewDecidesWhatIsUp)
{
    // Seen turned by a quarter: what lies at the right in the world is on top.
    const AcGeMatrix3d quarter = AcGeMatrix3d::rotation(M_PI / 2, AcGeVector3d::kZAxis);
    Extents extents(quarter);
    extents.path({{0, 0, 0}, {30, 0, 0}, {30, 10, 0}}, false, red);
    EXPECT_NEAR(extents.box().left, -10, 1e-9);
    EXPECT_NEAR(extents.box().top, 30, 1e-9);
    Paper paper(FileKind::png, quarter, extents.box());
    paper.area({{{20, 0, 0}, {30, 0, 0}, {30, 10, 0}, {20, 10, 0}}}, red);
    const Picture picture(*paper.finish());
    EXPECT_LT(picture.width(), picture.height());
    EXPECT_EQ(picture.at(0.5, 0.9), redPixel);
    EXPECT_EQ(picture.at(0.5, 0.3), whitePixel);
}

TEST(Paper, anAreaHasHoles)
{
    Paper paper(FileKind::png, plan, {0, 0, 10, 10});
    paper.area({{{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}},
                {{3, 3, 0}, {7, 3, 0}, {7, 7, 0}, {3, 7, 0}}},
               red);
    const Picture picture(*paper.finish());
    EXPECT_EQ(picture.at(0.5, 0.5), whitePixel);
    EXPECT_EQ(picture.at(0.1, 0.5), redPixel);
}

TEST(Paper, endlessLinesReachTheEdgeOfTheSheet)
{
    const struct
    {
        const char* what;
        AcGePoint3d from;
        AcGeVector3d along;
        bool both;
        std::array<bool, 2> leftAndRight;
    } rows[] = {
        {"to the right", {5, 5, 0}, {0.001, 0, 0}, false, {false, true}},
        {"to the left", {5, 5, 0}, {-7, 0, 0}, false, {true, false}},
        {"both ways", {5, 5, 0}, {1, 0, 0}, true, {true, true}},
        {"from far away", {-1e12, 5, 0}, {1, 0, 0}, false, {true, true}},
        {"away from the sheet", {1e12, 5, 0}, {1, 0, 0}, false, {false, false}},
        {"far off", {5, 1e12, 0}, {1, 0, 0}, true, {false, false}},
        {"towards the viewer", {5, 5, 0}, {0, 0, 1}, true, {false, false}},
    };
    for (const auto& row : rows)
    {
        Paper paper(FileKind::png, plan, {0, 0, 10, 10});
        paper.ray(row.from, row.along, row.both, red);
        const Picture picture(*paper.finish());
        EXPECT_EQ(picture.at(0, 0.5) != whitePixel, row.leftAndRight[0]) << row.what;
        EXPECT_EQ(picture.at(1, 0.5) != whitePixel, row.leftAndRight[1]) << row.what;
    }
}

TEST(Paper, aTextIsAsHighAsItsCapitalsAndLiesOnItsLine)
{
    const TextLine line{{0, 0, 0}, {10, 0, 0}, {0, 10, 0}, 0, 0, L"H"};
    Extents extents(plan);
    extents.text(line, red);
    EXPECT_NEAR(extents.box().height(), 10, 1e-9);
    EXPECT_NEAR(extents.box().width(), textWidth(L"H") * 10, 1e-9);
    Paper paper(FileKind::png, plan, {0, 0, 10, 10});
    paper.text(line, red);
    const Picture picture(*paper.finish());
    const double stem = 10.0 / 420 + 0.13 * 400 / 420;  // of the letter, within the sheet
    EXPECT_EQ(picture.at(stem, 0.05), redPixel);
    EXPECT_EQ(picture.at(stem, 0.95), redPixel);
    EXPECT_EQ(picture.at(stem, 0.985), whitePixel);
}

namespace
{
TextLine letterAt(double x)
{
    TextLine line;
    line.origin = AcGePoint3d(x, 5, 0);
    line.along = AcGeVector3d(0.5, 0, 0);
    line.up = AcGeVector3d(0, 0.5, 0);
    line.text = L"H";
    return line;
}

const Points farLine{AcGePoint3d(10, 6, 0), AcGePoint3d(10, 4, 0), AcGePoint3d(9, 4, 0)};

struct Shape
{
    const char* what;
    void (*draw)(Paper& paper);
};

const Shape shapes[] = {
    {"a point", [](Paper& paper) { paper.dot(AcGePoint3d(10, 5, 0), red); }},
    {"a line", [](Paper& paper) { paper.path(farLine, false, red); }},
    {"an outline", [](Paper& paper) { paper.path(farLine, true, red); }},
    {"an area", [](Paper& paper) { paper.area({farLine}, red); }},
};
}  // namespace

// In a vector drawing a line from the text's end to the shape would be visible, even with width 0.
TEST(Paper, whatFollowsATextBeginsAtItsOwnPlace)
{
    if (!canWrite(FileKind::svg))
    {
        GTEST_SKIP();
    }
    for (const Shape& shape : shapes)
    {
        const auto svg = [&shape](bool textBefore)
        {
            Paper paper(FileKind::svg, plan, {0, 0, 10, 10});
            textBefore ? paper.text(letterAt(0), red) : void();
            shape.draw(paper);
            return *paper.finish();
        };
        const std::string alone = svg(false);
        const std::size_t begin = alone.rfind("<path");
        const std::string drawn = alone.substr(begin, alone.find('>', begin) - begin);
        EXPECT_NE(svg(true).find(drawn), std::string::npos) << shape.what;
    }
}

namespace
{
// Returns how many shapes a file of vectors has when lines of these colours are drawn.
std::size_t shapesOf(const std::vector<host::Color>& lines, bool dotsBetween = false)
{
    Paper paper(FileKind::svg, plan, {0, 0, 10, 10});
    for (const host::Color color : lines)
    {
        paper.path({{1, 1, 0}, {9, 9, 0}}, false, color);
        if (dotsBetween)
        {
            paper.dot({5, 5, 0}, red);
        }
    }
    const std::string svg = *paper.finish();
    std::size_t shapes = 0;
    for (std::size_t at = svg.find("<path"); at != svg.npos; at = svg.find("<path", at + 1))
    {
        ++shapes;
    }
    return shapes;
}
}  // namespace

// A file of half a million lines is a fifth as large, and nothing is drawn out of turn.
TEST(Paper, linesThatLookAlikeShareAShapeOfAFileOfVectors)
{
    if (!canWrite(FileKind::svg))
    {
        GTEST_SKIP() << "arxhost for Windows draws PNG only";
    }
    EXPECT_EQ(shapesOf(std::vector(1001, red)), 3u);
    EXPECT_EQ(shapesOf({red, red, host::black, red}), 3u);
    EXPECT_EQ(shapesOf({red, red, red}, true), 6u);
}

TEST(Paper, anEmptyDrawingIsAnEmptySheet)
{
    for (const FileKind kind : {FileKind::png, FileKind::pdf, FileKind::svg})
    {
        EXPECT_TRUE(!canWrite(kind) || !Paper(kind, plan, {}).finish()->empty());
    }
    EXPECT_EQ(Picture(*Paper(FileKind::png, plan, {}).finish()).at(0.5, 0.5), whitePixel);
}

TEST(Paper, theEndOfTheNameIsTheKindOfFile)
{
    for (const char* name : {"a.png", "A.PDF", "x/y.z/plan.Svg"})
    {
        EXPECT_TRUE(host::isPlotFile(name)) << name;
    }
    for (const char* name : {"", "png", "a.dxf", "a.png/", "a.png "})
    {
        EXPECT_FALSE(host::isPlotFile(name)) << name;
    }
}
