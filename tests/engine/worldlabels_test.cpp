#include <cmath>

#include "engine/labels.h"
#include "engine/viewframe.h"
#include "output/tolerance.h"
#include "tests/engine/gridtest.h"

using tests::LabelSeen;
using tests::near;

namespace
{
class WorldLabels : public tests::Grid
{
protected:
    void SetUp() override
    {
        Grid::SetUp();
        options.needText = true;
    }
};

bool sameAngle(double left, double right)
{
    return std::fabs(std::remainder(left - right, 2 * M_PI)) < 1e-9;
}

TEST_F(WorldLabels, standAtBothEndsOfEachLineAndRunAlongItInside)
{
    pickSheet();
    build();
    const double up = M_PI / 2;
    const LabelSeen expected[] = {
        {L"X=10.00", {10, 0, 0}, up, AcDb::kTextLeft},    // starts at the bottom edge
        {L"X=10.00", {10, 20, 0}, up, AcDb::kTextRight},  // ends at the top edge
        {L"X=20.00", {20, 0, 0}, up, AcDb::kTextLeft},
        {L"X=20.00", {20, 20, 0}, up, AcDb::kTextRight},
        {L"Y=10.00", {0, 10, 0}, 0, AcDb::kTextLeft},
        {L"Y=10.00", {30, 10, 0}, 0, AcDb::kTextRight},
    };
    const std::vector<LabelSeen> seen = labels();
    ASSERT_EQ(seen.size(), std::size(expected));
    for (std::size_t i = 0; i < seen.size(); ++i)
    {
        EXPECT_EQ(seen[i].text, expected[i].text);
        EXPECT_TRUE(near(seen[i].anchor, expected[i].anchor));
        EXPECT_TRUE(sameAngle(seen[i].rotation, expected[i].rotation)) << seen[i].rotation;
        EXPECT_EQ(seen[i].mode, expected[i].mode);
    }
}

TEST_F(WorldLabels, areOnTheBaselineOfTheirHeightAndStyle)
{
    options.heightText = 0.75;
    pickSheet();
    const AcDbObjectIdArray made = build();
    tests::inspect<AcDbText>(made.last(),
                             [](const AcDbText& text)
                             {
                                 EXPECT_NEAR(text.height(), 0.75, 1e-12);
                                 EXPECT_EQ(text.verticalMode(), AcDb::kTextBottom);
                                 return 0;
                             });
}

TEST_F(WorldLabels, areNotMadeWhenNotWanted)
{
    options.needText = false;
    pickSheet();
    build();
    EXPECT_TRUE(texts().empty());
}

TEST_F(WorldLabels, areMadeOnTheEdgesThatAreWanted)
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
        {&tests::GridOptions::bXLeftScribe, 0, {}},  // no upright line ends there
        {&tests::GridOptions::bXRightScribe, 0, {}},
        {&tests::GridOptions::bYTopScribe, 0, {}},
        {&tests::GridOptions::bYBottomScribe, 0, {}},
        {&tests::GridOptions::bYLeftScribe, 1, {0, 10, 0}},
        {&tests::GridOptions::bYRightScribe, 1, {30, 10, 0}},
    };
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
        for (int i = 0; i < made.length(); ++i)
        {
            eraseEntity(made[i]);
        }
    }
}

// In a turned frame world lines end on any edge.
TEST_F(WorldLabels, inATurnedFrameEveryFlagHasItsEdge)
{
    using Flag = bool tests::GridOptions::*;
    const Flag flags[] = {&tests::GridOptions::bXTopScribe,  &tests::GridOptions::bXBottomScribe,
                          &tests::GridOptions::bXLeftScribe, &tests::GridOptions::bXRightScribe,
                          &tests::GridOptions::bYTopScribe,  &tests::GridOptions::bYBottomScribe,
                          &tests::GridOptions::bYLeftScribe, &tests::GridOptions::bYRightScribe};
    setUcs({0, 0, 0}, 40);
    pick({0, 0, 0}, {60, 60, 0});
    const auto onEdge = [&](const LabelSeen& label, int edge)
    {
        const AcGePoint3d p = toUcs(label.anchor);
        const double distance[] = {60 - p.y, p.y, p.x, 60 - p.x};
        return std::fabs(distance[edge]) < 1e-9;
    };
    for (int i = 0; i < 8; ++i)
    {
        wantNoLabels();
        options.*flags[i] = true;
        const AcDbObjectIdArray made = build();
        const std::vector<LabelSeen> seen = labels();
        EXPECT_FALSE(seen.empty());
        for (const LabelSeen& label : seen)
        {
            EXPECT_EQ(label.text[0], i < 4 ? L'X' : L'Y');
            EXPECT_TRUE(onEdge(label, i % 4)) << i;
        }
        for (int k = 0; k < made.length(); ++k)
        {
            eraseEntity(made[k]);
        }
    }
}

TEST_F(WorldLabels, belongToAnEdgeThatIsAsFarAsTheTolerance)
{
    struct Row
    {
        int GridSettings::*flag;
        AcGePoint3d end;
    };
    const Row rows[] = {
        {&GridSettings::bXTopScribe, {10, 21, 0}},
        {&GridSettings::bXBottomScribe, {10, -1, 0}},
        {&GridSettings::bXLeftScribe, {-1, 10, 0}},
        {&GridSettings::bXRightScribe, {31, 10, 0}},
    };
    const BorrowedTolerance tolerance(1);
    for (const Row& row : rows)
    {
        GridRequest request;
        request.corner2 = AcGePoint3d(30, 20, 0);
        for (const Row& other : rows)
        {
            request.options.*other.flag = other.flag == row.flag;
        }
        AcGePoint3dArray ends;
        ends.append(row.end);
        ends.append(AcGePoint3d(10, 10, 0));
        AcDbObjectIdArray made;
        addWorldLabels(request, 0, ends, made);
        EXPECT_EQ(made.length(), 1) << row.end.x << ' ' << row.end.y;
    }
}

TEST_F(WorldLabels, countFromTheBasePointInWorldUnits)
{
    options.basePoint = {-5, 3, 0};
    options.textXScribe = L"";
    options.textYScribe = L"N ";
    options.iCountSigns = 0;
    pickSheet();
    build();
    EXPECT_EQ(sortedTexts(), (std::vector<std::wstring>{L"10", L"10", L"20", L"20", L"30", L"30",
                                                        L"N 0", L"N 0", L"N 10", L"N 10"}));
}

TEST_F(WorldLabels, ofTheLineThroughTheBaseShowNoughtAndNeverAMinusSign)
{
    options.iCountSigns = 9;
    options.textXScribe = options.textYScribe = L"";
    for (int degrees = 0; degrees < 360; degrees += 7)
    {
        setUcs({3.1, 7.7, 0}, degrees);
        pickSheet();
        options.basePoint = toWcs({15.3, 9.9, 0});
        const AcDbObjectIdArray made = build();
        int noughts = 0;
        for (const std::wstring& text : texts())
        {
            EXPECT_NE(text, L"-0.000000000");
            noughts += text == L"0.000000000";
        }
        EXPECT_EQ(noughts, 4) << degrees;
        for (int i = 0; i < made.length(); ++i)
        {
            eraseEntity(made[i]);
        }
    }
}

TEST_F(WorldLabels, oneLineHasOnePairHoweverManyPiecesItHas)
{
    options.VertStep = 1;
    options.bYLeftScribe = options.bYRightScribe = false;
    pickSheet();
    build();
    EXPECT_EQ(texts().size(), 4u);
}

TEST_F(WorldLabels, standAtTheEndsThatComeFirstInTheTurnedFrame)
{
    options.needText = true;
    setUcs({30, 20, 0}, 180);
    pickSheet();
    build();
    const std::vector<LabelSeen> seen = labels();
    ASSERT_EQ(seen.size(), 6u);
    EXPECT_NEAR(toUcs(seen[0].anchor).y, 0, 1e-9);
    EXPECT_EQ(seen[0].mode, AcDb::kTextLeft);
    EXPECT_NEAR(toUcs(seen[4].anchor).x, 0, 1e-9);
}

// Both ends of a line are as high there, as far as coordinates can say.
TEST_F(WorldLabels, ofOneSheetRunOneWayInAQuarterTurnedView)
{
    options.HorStep = options.VertStep = 50;
    for (const double degrees : {90.0, 270.0, -90.0})
    {
        const double twist = degrees * (M_PI / 180);
        setUcs({0, 0, 0});
        state().view.twist = twist;
        ASSERT_EQ(setViewFrameUcs(), Acad::eOk);
        pick({-23.1, -378.1, 0}, {325.6, -100.7, 0});
        const AcDbObjectIdArray made = build();
        const std::vector<LabelSeen> seen = labels();
        ASSERT_EQ(seen.size(), 24u);
        for (const LabelSeen& label : seen)
        {
            const LabelSeen& first = label.text[0] == L'X' ? seen.front() : seen.back();
            EXPECT_TRUE(sameAngle(label.rotation, first.rotation)) << degrees << label.anchor.x;
        }
        for (int i = 0; i < made.length(); ++i)
        {
            eraseEntity(made[i]);
        }
    }
}

TEST_F(WorldLabels, turnOverUnderATwistInTheFirstAndThirdQuarterOnly)
{
    struct Row
    {
        double twist;
        bool turned;
    };
    const double pi = 3.14159265359;
    const Row rows[] = {
        {0, false},
        {M_PI / 6, true},
        {pi / 2, false},
        {2, false},
        {pi, false},
        {M_PI, false},
        {pi + 1, true},
        {pi / 2 + pi, false},
        {6, false},
        {-0.5, false},
        {M_PI / 2, true},  // a little less than the quarter
                           // turn of twelve decimals
        {3 * M_PI / 2, true},
    };
    pickSheet();
    for (const Row& row : rows)
    {
        state().view.twist = row.twist;
        const AcDbObjectIdArray made = build();
        const std::vector<LabelSeen> seen = labels();
        ASSERT_EQ(seen.size(), 6u);
        const double up = row.turned ? 3 * M_PI / 2 : M_PI / 2;
        EXPECT_TRUE(sameAngle(seen[0].rotation, up)) << row.twist;
        EXPECT_TRUE(sameAngle(seen[1].rotation, up)) << row.twist;
        EXPECT_EQ(seen[0].mode, row.turned ? AcDb::kTextRight : AcDb::kTextLeft);
        EXPECT_EQ(seen[1].mode, row.turned ? AcDb::kTextLeft : AcDb::kTextRight);
        EXPECT_TRUE(sameAngle(seen[4].rotation, 0));  // Y labels stay
        EXPECT_EQ(seen[4].mode, AcDb::kTextLeft);
        EXPECT_EQ(seen[5].mode, AcDb::kTextRight);
        for (int i = 0; i < made.length(); ++i)
        {
            eraseEntity(made[i]);
        }
    }
}

// A twisted view turns a label over, and turns a label back that was turned over already.
TEST_F(WorldLabels, halfTurnsOfLabelsHaveTwelveDigitsAndGoBackByAsMuch)
{
    pickSheet();
    state().view.twist = 0.5;
    build();
    const std::vector<LabelSeen> seen = labels();
    const double halfTurn = 3.14159265359;
    EXPECT_NEAR(seen[0].rotation, M_PI / 2 + halfTurn - 2 * M_PI, 5e-14);
    EXPECT_NEAR(seen[1].rotation, -M_PI / 2, 5e-14);
}

TEST_F(WorldLabels, withoutPrefixAndNumberThereIsNoText)
{
    options.textXScribe = L"";
    options.heightText = -1;
    pickSheet();
    build();
    EXPECT_EQ(texts().size(), 6u);  // a height that no text has keeps the label
}
}  // namespace
