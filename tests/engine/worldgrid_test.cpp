#include <cmath>
#include <map>

#include "host/database/packing.h"
#include "tests/engine/gridtest.h"
#include "tests/support/letgo.h"

using tests::inspect;
using tests::near;

namespace
{
class WorldGrid : public tests::Grid
{
};

using Span = std::pair<double, double>;

// Spans of the pieces on each upright line, by its x, in order of creation.
std::map<double, std::vector<Span>> uprights(const std::vector<tests::LineSeen>& lines)
{
    std::map<double, std::vector<Span>> spans;
    for (const tests::LineSeen& line : lines)
    {
        if (line.start.x == line.end.x)
        {
            spans[line.start.x].push_back({line.start.y, line.end.y});
        }
    }
    return spans;
}

std::map<double, std::vector<Span>> levels(const std::vector<tests::LineSeen>& lines)
{
    std::map<double, std::vector<Span>> spans;
    for (const tests::LineSeen& line : lines)
    {
        if (line.start.y == line.end.y)
        {
            spans[line.start.y].push_back({line.start.x, line.end.x});
        }
    }
    return spans;
}

TEST_F(WorldGrid, continuousLinesAreChainsOfPiecesOneStepLong)
{
    options.VertStep = 5;
    pickSheet();
    build();
    const std::vector<Span> up = {{0, 2.5}, {2.5, 7.5}, {7.5, 12.5}, {12.5, 17.5}, {17.5, 20}};
    const std::vector<Span> across = {{0, 5}, {5, 15}, {15, 25}, {25, 30}};
    EXPECT_EQ(uprights(lines()), (std::map<double, std::vector<Span>>{{10, up}, {20, up}}));
    EXPECT_EQ(levels(lines()),
              (std::map<double, std::vector<Span>>{{5, across}, {10, across}, {15, across}}));
}

TEST_F(WorldGrid, linesOnTheOutlineAreNotDrawn)
{
    pickSheet();
    build();
    EXPECT_EQ(uprights(lines()).count(0), 0u);
    EXPECT_EQ(uprights(lines()).count(30), 0u);
    EXPECT_EQ(levels(lines()).count(0), 0u);
    EXPECT_EQ(levels(lines()).count(20), 0u);
}

TEST_F(WorldGrid, aLineThatAFarBasePutsOnTheOutlineIsNotDrawn)
{
    pick({0.3, 0, 0}, {30, 20, 0});
    options.basePoint.x = 1e7 + 0.3;  // comes out 7e-10 to the right of the edge
    build();
    const auto lefts = uprights(lines());
    ASSERT_EQ(lefts.size(), 2u);
    EXPECT_NEAR(lefts.begin()->first, 10.3, 1e-8);
}

TEST_F(WorldGrid, cornersPickedInAnyOrderGiveTheSameGrid)
{
    const AcGePoint3d picks[][2] = {{{0, 0, 0}, {30, 20, 0}},
                                    {{30, 20, 0}, {0, 0, 0}},
                                    {{30, 0, 0}, {0, 20, 0}},
                                    {{0, 20, 0}, {30, 0, 0}}};
    options.needText = true;
    for (const auto& corners : picks)
    {
        pick(corners[0], corners[1]);
        const AcDbObjectIdArray made = build();
        EXPECT_EQ(uprights(lines()).size(), 2u);
        EXPECT_EQ(levels(lines()).size(), 1u);
        EXPECT_EQ(texts().size(), 6u);
        for (int i = 0; i < made.length(); ++i)
        {
            eraseEntity(made[i]);
        }
    }
}

TEST_F(WorldGrid, aGridAskedForTwiceIsTheSameTwice)
{
    options.needText = true;
    setUcs({5, 7, 0}, 20);
    pickSheet();
    const int first = build().length();
    const std::vector<tests::LineSeen> once = lines();
    EXPECT_EQ(build().length(), first);
    const std::vector<tests::LineSeen> twice = lines();
    ASSERT_EQ(twice.size(), 2 * once.size());
    for (std::size_t i = 0; i < once.size(); ++i)
    {
        EXPECT_TRUE(near(twice[once.size() + i].start, once[i].start, 0));
        EXPECT_TRUE(near(twice[once.size() + i].end, once[i].end, 0));
    }
}

TEST_F(WorldGrid, everythingMadeIsReturnedInOrderOfCreation)
{
    options.needText = true;
    pickSheet();
    const AcDbObjectIdArray made = build();
    const AcDbObjectIdArray drawn = entities();  // the outline comes first
    ASSERT_EQ(made.length(), drawn.length() - 1);
    for (int i = 0; i < made.length(); ++i)
    {
        EXPECT_EQ(made[i], drawn[i + 1]);
    }
    // node by node, upwards, then the next line; the upright piece first
    const std::vector<tests::LineSeen> seen = lines();
    EXPECT_TRUE(near(seen[0].start, {0, 10, 0}) && near(seen[0].end, {5, 10, 0}));
    EXPECT_TRUE(near(seen[1].start, {10, 0, 0}) && near(seen[1].end, {10, 5, 0}));
    EXPECT_TRUE(near(seen[2].start, {10, 5, 0}) && near(seen[2].end, {10, 15, 0}));
    EXPECT_TRUE(near(seen[3].start, {5, 10, 0}) && near(seen[3].end, {15, 10, 0}));
    // X labels before Y labels
    const std::vector<std::wstring> written = texts();
    EXPECT_EQ(written.front()[0], L'X');
    EXPECT_EQ(written.back()[0], L'Y');
}

TEST_F(WorldGrid, linesAndLabelsHaveTheColourAskedFor)
{
    options.needText = true;
    options.Color = 33;
    pickSheet();
    const AcDbObjectIdArray made = build();
    for (int i = 0; i < made.length(); ++i)
    {
        EXPECT_EQ(inspect<AcDbEntity>(made[i], [](const AcDbEntity& e) { return e.colorIndex(); }),
                  33);
    }
}

TEST_F(WorldGrid, crossesAreCutAtTheOutline)
{
    options.LookType = 1;
    options.HorStep = options.VertStep = 100;
    options.basePoint = {1, 10, 0};  // bars reach 2 to either side
    pick({0, 0, 0}, {10, 20, 0});
    build();
    EXPECT_EQ(lines().size(), 2u);
    EXPECT_TRUE(hasLine({1, 8, 0}, {1, 12, 0}));
    EXPECT_TRUE(hasLine({0, 10, 0}, {3, 10, 0}));
}

TEST_F(WorldGrid, anyLookButLinesIsCrosses)
{
    pickSheet();
    options.basePoint = {5, 5, 0};
    for (const int look : {1, 2, -1, 2147483647})
    {
        options.LookType = look;
        const AcDbObjectIdArray made = build();
        EXPECT_EQ(made.length(), 12) << look;
        EXPECT_TRUE(hasLine({5, 3, 0}, {5, 7, 0})) << look;
        for (int i = 0; i < made.length(); ++i)
        {
            eraseEntity(made[i]);
        }
    }
}

TEST_F(WorldGrid, aCrossLargerThanTheOutlineKeepsWhatLiesWithin)
{
    options.LookType = 1;
    options.crossSize = 1000;
    options.basePoint = {2, 10, 0};
    options.HorStep = options.VertStep = 100;
    pick({0, 0, 0}, {4, 20, 0});
    build();
    const std::vector<tests::LineSeen> seen = lines();
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_NEAR(seen[0].start.distanceTo(seen[0].end), 20, 1e-9);
    EXPECT_NEAR(seen[1].start.distanceTo(seen[1].end), 4, 1e-9);
    EXPECT_TRUE(near(seen[0].start + (seen[0].end - seen[0].start) / 2, {2, 10, 0}));
}

TEST_F(WorldGrid, aPieceWithBothEndsOnTheOutlineAndItsNodeOutsideIsDropped)
{
    options.LookType = 1;
    options.crossSize = 30;
    options.HorStep = options.VertStep = 100;
    options.basePoint = {15, 0, 0};  // the level bar lies on the lower edge
    pickSheet();
    build();
    const std::vector<tests::LineSeen> seen = lines();
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].start.x, 15);
    EXPECT_EQ(seen[0].end.x, 15);
}

TEST_F(WorldGrid, aLineThroughABasePointInsideRunsExactlyThroughIt)
{
    options.basePoint = {12.345678, 7.654321, 0};
    pickSheet();
    build();
    EXPECT_EQ(uprights(lines()).count(12.345678), 1u);
    EXPECT_EQ(levels(lines()).count(7.654321), 1u);
}

TEST_F(WorldGrid, theRectangleIsCoveredWhereverTheBaseIs)
{
    for (const double base : {-1e4, -13.0, -5.0, 0.0, 3.0, 15.0, 27.0, 44.0, 1e4})
    {
        options.basePoint = {base, base, 0};
        pickSheet();
        const AcDbObjectIdArray made = build();
        int inside = 0;
        for (double x = base - 2e4; x < 30; x += 10)
        {
            inside += x > 0;
        }
        EXPECT_EQ(int(uprights(lines()).size()), inside) << base;
        for (int i = 0; i < made.length(); ++i)
        {
            eraseEntity(made[i]);
        }
    }
}

TEST_F(WorldGrid, theOutlineCountsAndNotTheCornersAlone)
{
    pick({0, 0, 0}, {30, 20, 0});
    corner1 = {12, 12, 0};  // the command widens what is picked to the outline
    corner2 = {13, 13, 0};
    build();
    EXPECT_EQ(uprights(lines()).size(), 2u);
    EXPECT_EQ(levels(lines()).size(), 1u);
}

TEST_F(WorldGrid, theFirstFourCornersOfAnOutlineCutIt)
{
    AcGePoint3dArray points;
    for (const AcGePoint3d& p :
         {AcGePoint3d(0, 0, 0), AcGePoint3d(30, 0, 0), AcGePoint3d(30, 20, 0),
          AcGePoint3d(0, 20, 0), AcGePoint3d(-1000, 12, 0), AcGePoint3d(0, 0, 0)})
    {
        points.append(p);
    }
    corner1 = {0, 0, 0};
    corner2 = {30, 20, 0};
    outline = addPolylineFrame(true, points, 250, nullptr, nullptr, ACDB_MODEL_SPACE);
    build();
    // The piece at 0,10 leaves through an edge that the entity lacks, so it meets no edge there and
    // keeps its end.
    EXPECT_TRUE(hasLine({-5, 10, 0}, {5, 10, 0}));
    EXPECT_FALSE(hasLine({-15, 10, 0}, {-5, 10, 0}));
}

TEST_F(WorldGrid, anOutlineOfThreeCornersHoldsNothing)
{
    AcGePoint3dArray points;
    for (const AcGePoint3d& p :
         {AcGePoint3d(0, 0, 0), AcGePoint3d(30, 0, 0), AcGePoint3d(0, 30, 0)})
    {
        points.append(p);
    }
    points.append(points.first());
    corner2 = {30, 30, 0};
    outline = addPolylineFrame(true, points, 250, nullptr, nullptr, ACDB_MODEL_SPACE);
    EXPECT_EQ(build().length(), 0);
}

// An outline of a kind that the host cannot cut lines with.
class Uncuttable : public AcDbEntity
{
public:
    Acad::ErrorStatus transformBy(const AcGeMatrix3d&) override { return Acad::eOk; }
    Acad::ErrorStatus getStretchPoints(AcGePoint3dArray& points) const override
    {
        points.append(AcGePoint3d(0, 0, 0));
        points.append(AcGePoint3d(30, 0, 0));
        points.append(AcGePoint3d(30, 20, 0));
        points.append(AcGePoint3d(0, 20, 0));
        return Acad::eOk;
    }
};

TEST_F(WorldGrid, aPieceWhoseCutFailsIsDroppedAndAWholeOneIsKept)
{
    ASSERT_EQ(appendToBlock(new Uncuttable(), outline, ACDB_MODEL_SPACE), Acad::eOk);
    corner2 = {30, 20, 0};
    options.needText = true;
    const AcDbObjectIdArray made = build();
    EXPECT_EQ(made.length(), 4);
    EXPECT_TRUE(hasLine({10, 5, 0}, {10, 15, 0}));
    EXPECT_TRUE(hasLine({5, 10, 0}, {15, 10, 0}));
    EXPECT_TRUE(texts().empty());
}

// A line through the notch leaves and enters again: its label points would be a choice.
TEST_F(WorldGrid, aLineThatTheOutlineCutsMoreThanTwiceHasNoLabels)
{
    AcGePoint3dArray points;
    points.append(AcGePoint3d(0, 0, 0));
    points.append(AcGePoint3d(30, 0, 0));
    points.append(AcGePoint3d(30, 20, 0));
    points.append(AcGePoint3d(0, 20, 0));
    points.append(AcGePoint3d(25, 10, 0));
    points.append(AcGePoint3d(0, 0, 0));
    outline = addPolylineFrame(true, points, 250, nullptr, nullptr, ACDB_MODEL_SPACE);
    corner2 = {30, 20, 0};
    options.needText = true;
    build();
    for (const std::wstring& text : texts())
    {
        EXPECT_NE(text[0], L'X');
    }
}

TEST_F(WorldGrid, aBoundaryThatCannotBeReadGivesNothing)
{
    EXPECT_EQ(build().length(), 0);  // there is no outline
    pickSheet();
    {
        AcDbObjectPointer<AcDbEntity> writer(outline, AcDb::kForWrite);
        EXPECT_EQ(build().length(), 0);
    }
    EXPECT_GT(build().length(), 0);
    eraseEntity(outline);
    EXPECT_EQ(build().length(), 0);
}

TEST_F(WorldGrid, linesThatTheHostRefusesAreLeftOut)
{
    const tests::LetGo letGo;
    pickSheet();
    options.needText = true;
    AcDbObjectPointer<AcDbBlockTableRecord> reader(modelSpace(), AcDb::kForRead);
    EXPECT_EQ(build().length(), 0);
}
}  // namespace
