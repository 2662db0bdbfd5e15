#include <cmath>

#include "host/database/packing.h"
#include "tests/engine/gridtest.h"
#include "tests/support/letgo.h"

using tests::LabelSeen;
using tests::near;

namespace
{
class UcsGrid : public tests::Grid
{
protected:
    void SetUp() override
    {
        Grid::SetUp();
        options.WCSBasePoint = 1;
    }
    void erase(const AcDbObjectIdArray& ids)
    {
        for (int i = 0; i < ids.length(); ++i)
        {
            eraseEntity(ids[i]);
        }
    }
};

bool sameAngle(double left, double right)
{
    return std::fabs(std::remainder(left - right, 2 * M_PI)) < 1e-9;
}

TEST_F(UcsGrid, linesRunAlongTheAxesOfTheUcs)
{
    setUcs({100, 50, 3}, 30);
    options.basePoint = toWcs({0, 0, 0});
    options.VertStep = 5;
    pickSheet();
    build();
    const std::vector<tests::LineSeen> seen = lines();
    EXPECT_EQ(seen.size(), 22u);
    for (const tests::LineSeen& line : seen)
    {
        const AcGePoint3d start = toUcs(line.start);
        const AcGePoint3d end = toUcs(line.end);
        EXPECT_TRUE(std::fabs(start.x - end.x) < 1e-9 || std::fabs(start.y - end.y) < 1e-9);
        EXPECT_NEAR(start.z, 0, 1e-9);
        for (const AcGePoint3d& p : {start, end})
        {
            EXPECT_TRUE(p.x > -1e-9 && p.x < 30 + 1e-9 && p.y > -1e-9 && p.y < 20 + 1e-9);
        }
    }
    EXPECT_TRUE(hasLine(toWcs({10, 17.5, 0}), toWcs({10, 20, 0})));
    EXPECT_TRUE(hasLine(toWcs({5, 10, 0}), toWcs({15, 10, 0})));
}

TEST_F(UcsGrid, cornersPickedInAnyOrderGiveTheSameGrid)
{
    setUcs({100, 50, 0}, 30);
    options.basePoint = toWcs({0, 0, 0});
    options.needText = true;
    const AcGePoint3d picks[][2] = {
        {{0, 0, 0}, {30, 20, 0}}, {{30, 20, 0}, {0, 0, 0}}, {{30, 0, 0}, {0, 20, 0}}};
    for (const auto& corners : picks)
    {
        pick(corners[0], corners[1]);
        const AcDbObjectIdArray made = build();
        EXPECT_EQ(made.length(), 6 + 4 + 6);
        erase(made);
    }
}

TEST_F(UcsGrid, aTiltedPlaneIsAsGoodAsAnyOther)
{
    AcGeMatrix3d tilted = AcGeMatrix3d::rotation(0.7, AcGeVector3d(1, 2, 3));
    setUcs(tilted.setTranslation(AcGeVector3d(10, 20, 30)));
    options.basePoint = toWcs({0, 0, 0});
    pickSheet();
    options.needText = true;
    build();
    EXPECT_EQ(lines().size(), 10u);
    EXPECT_EQ(texts().size(), 6u);
}

TEST_F(UcsGrid, theTestRectangleDoesNotStay)
{
    pickSheet();
    const AcDbObjectIdArray made = build();
    EXPECT_EQ(entities().length(), made.length() + 1);  // and the outline
    eraseEntity(outline);
    EXPECT_TRUE(outline.isErased());  // it was left closed
}

// Entities of no type that the host can cut lines with.
class Uncuttable : public AcDbEntity
{
public:
    Acad::ErrorStatus transformBy(const AcGeMatrix3d&) override { return Acad::eOk; }
};

TEST_F(UcsGrid, aPieceWhoseCutFailsIsDroppedAndAWholeOneIsKept)
{
    ASSERT_EQ(appendToBlock(new Uncuttable(), outline, ACDB_MODEL_SPACE), Acad::eOk);
    corner2 = {30, 20, 0};
    EXPECT_EQ(build().length(), 4);
}

// Two millionths off an edge, where the host's own tests decide.
TEST_F(UcsGrid, linesBesideAnEdgeAreDrawnInsideAndDroppedOutside)
{
    struct Row
    {
        double x, y;  // of a node
        bool across;  // its horizontal line is looked for
        bool drawn;
    };
    const double off = 2e-6;
    const Row rows[] = {
        {0 + off, 10, false, true},   {0 - off, 10, false, false}, {30 - off, 10, false, true},
        {30 + off, 10, false, false}, {10, 0 + off, true, true},   {10, 0 - off, true, false},
        {10, 20 - off, true, true},   {10, 20 + off, true, false},
    };
    pickSheet();
    for (const Row& row : rows)
    {
        options.basePoint.set(row.x, row.y, 0);
        const AcDbObjectIdArray made = build();
        const AcGeVector3d half = row.across ? AcGeVector3d(5, 0, 0) : AcGeVector3d(0, 5, 0);
        const AcGePoint3d node(row.x, row.y, 0);
        EXPECT_EQ(hasLine(node - half, node + half), row.drawn) << row.x << ' ' << row.y;
        erase(made);
    }
}

TEST_F(UcsGrid, theTestRectangleIsNeverSeenAndLiesInThePlane)
{
    pickSheet();
    build();
    const host::ObjectStore& stubs = host::coreOf(database()).objects();
    int seen = 0;
    for (std::size_t i = 0; i < stubs.size(); ++i)
    {
        if (host::typeOf(&stubs[i]) != AcDb2dPolyline::desc() || !stubs[i].erased())
        {
            continue;
        }
        ++seen;
        AcDbObjectPointer<AcDb2dPolyline> rectangle(AcDbObjectId(&stubs[i]), AcDb::kForRead, true);
        ASSERT_EQ(rectangle.openStatus(), Acad::eOk);
        EXPECT_EQ(rectangle->visibility(), AcDb::kInvisible);
        EXPECT_TRUE(rectangle->isClosed());
        EXPECT_EQ(rectangle->elevation(), 0);
    }
    EXPECT_EQ(seen, 1);
}

// The half turn has twelve digits here, which the host's own angles have not.
TEST_F(UcsGrid, theHalfTurnOfALabelHasTwelveDigits)
{
    options.needText = true;
    pickSheet();
    build();
    EXPECT_NEAR(labels()[0].rotation, 3.14159265359 - M_PI / 2, 5e-14);
}

TEST_F(UcsGrid, aCrossIsKeptWhenOneEndOfItsBarIsInside)
{
    options.LookType = 1;
    options.HorStep = options.VertStep = 100;
    options.basePoint = {1, 10, 0};
    pick({0, 0, 0}, {10, 20, 0});
    build();
    EXPECT_EQ(lines().size(), 2u);
    EXPECT_TRUE(hasLine({1, 8, 0}, {1, 12, 0}));
    EXPECT_TRUE(hasLine({0, 10, 0}, {3, 10, 0}));
}

TEST_F(UcsGrid, aBarWithOnlyItsCentreInsideIsDropped)
{
    options.LookType = 1;
    options.crossSize = 10;
    options.basePoint = {2, 10, 0};
    options.HorStep = options.VertStep = 100;
    pick({0, 0, 0}, {4, 20, 0});
    build();
    ASSERT_EQ(lines().size(), 1u);
    EXPECT_TRUE(hasLine({2, 5, 0}, {2, 15, 0}));
}

TEST_F(UcsGrid, labelsStandAtTheEndsAndReadUpright)
{
    options.needText = true;
    setUcs({100, 50, 0}, 30);
    options.basePoint = toWcs({0, 0, 0});
    pickSheet();
    build();
    const double right = 30 * M_PI / 180;
    const double up = right + M_PI / 2;
    const LabelSeen expected[] = {
        {L"X=10.00", {10, 20, 0}, up, AcDb::kTextRight},
        {L"X=10.00", {10, 0, 0}, up, AcDb::kTextLeft},
        {L"X=20.00", {20, 20, 0}, up, AcDb::kTextRight},
        {L"X=20.00", {20, 0, 0}, up, AcDb::kTextLeft},
        {L"Y=10.00", {30, 10, 0}, right, AcDb::kTextRight},
        {L"Y=10.00", {0, 10, 0}, right, AcDb::kTextLeft},
    };
    const std::vector<LabelSeen> seen = labels();
    ASSERT_EQ(seen.size(), std::size(expected));
    for (std::size_t i = 0; i < seen.size(); ++i)
    {
        EXPECT_EQ(seen[i].text, expected[i].text);
        EXPECT_TRUE(near(toUcs(seen[i].anchor), expected[i].anchor));
        EXPECT_TRUE(sameAngle(seen[i].rotation, expected[i].rotation)) << seen[i].rotation;
        EXPECT_EQ(seen[i].mode, expected[i].mode);
    }
}

TEST_F(UcsGrid, onlyTheEdgesThatLinesEndOnAreAsked)
{
    using Flag = bool tests::GridOptions::*;
    struct Row
    {
        Flag flag;
        int count;
        AcGePoint3d first;
    };
    const Row rows[] = {
        {&tests::GridOptions::bXTopScribe, 2, {10, 20, 0}},
        {&tests::GridOptions::bXBottomScribe, 2, {10, 0, 0}},
        {&tests::GridOptions::bXLeftScribe, 0, {}},
        {&tests::GridOptions::bXRightScribe, 0, {}},
        {&tests::GridOptions::bYTopScribe, 0, {}},
        {&tests::GridOptions::bYBottomScribe, 0, {}},
        {&tests::GridOptions::bYLeftScribe, 1, {0, 10, 0}},
        {&tests::GridOptions::bYRightScribe, 1, {30, 10, 0}},
    };
    options.needText = true;
    pickSheet();
    for (const Row& row : rows)
    {
        wantNoLabels();
        options.*row.flag = true;
        const AcDbObjectIdArray made = build();
        const std::vector<LabelSeen> seen = labels();
        ASSERT_EQ(int(seen.size()), row.count);
        if (row.count > 0)
        {
            EXPECT_TRUE(near(seen[0].anchor, row.first));
        }
        erase(made);
    }
}

TEST_F(UcsGrid, theViewTwistTurnsNothingOver)
{
    options.needText = true;
    state().view.twist = 0.5;
    pickSheet();
    build();
    EXPECT_TRUE(sameAngle(labels()[0].rotation, M_PI / 2));
    EXPECT_EQ(labels()[0].mode, AcDb::kTextRight);
}

TEST_F(UcsGrid, valuesCountInTheUcsAndKeepTheSignOfTheirRounding)
{
    options.needText = true;
    options.iCountSigns = 6;
    options.textXScribe = options.textYScribe = L"";
    int negative = 0;
    for (int degrees = 1; degrees < 360; degrees += 7)
    {
        setUcs({3.1, 7.7, 0}, degrees);
        options.basePoint = toWcs({15.3, 9.9, 0});
        pickSheet();
        const AcDbObjectIdArray made = build();
        for (const std::wstring& text : texts())
        {
            negative += text == L"-0.000000";
            EXPECT_TRUE(text == L"0.000000" || text == L"-0.000000" || text == L"-10.000000" ||
                        text == L"10.000000")
                << testing::PrintToString(text);
        }
        erase(made);
    }
    EXPECT_GT(negative, 0);
}

TEST_F(UcsGrid, whenTheTestRectangleIsRefusedNothingIsDrawnAndTheOutlineStaysOpen)
{
    const tests::LetGo letGo;
    pickSheet();
    {
        AcDbObjectPointer<AcDbBlockTableRecord> reader(modelSpace(), AcDb::kForRead);
        EXPECT_EQ(build().length(), 0);
    }
    EXPECT_EQ(eraseEntity(outline), Acad::eHadMultipleReaders);
    EXPECT_FALSE(outline.isErased());
    closeLeftOpen(outline);
    closeLeftOpen(outline);
}

TEST_F(UcsGrid, anyFlagButNoughtMeansTheUcs)
{
    setUcs({0, 0, 0}, 45);
    pickSheet();
    for (const int flag : {1, -1, 2, 2147483647})
    {
        options.WCSBasePoint = flag;
        const AcDbObjectIdArray made = build();
        EXPECT_EQ(made.length(), 10) << flag;
        erase(made);
    }
}

// The outline is elsewhere, so there is no edge to cut the piece at.
TEST_F(UcsGrid, aPieceThatMeetsNoOutlineStaysWhole)
{
    pickSheet();
    const AcGePoint3d farCorner(1030, 1020, 0);
    AcGePoint3dArray elsewhere;
    elsewhere.append(AcGePoint3d(1000, 1000, 0));
    elsewhere.append(AcGePoint3d(1000, 1020, 0));
    elsewhere.append(farCorner);
    outline = addPolylineFrame(true, elsewhere, 250, nullptr, nullptr, ACDB_MODEL_SPACE);
    options.VertStep = 15;
    build();
    EXPECT_TRUE(hasLine({10, 7.5, 0}, {10, 22.5, 0}));
}
}  // namespace
