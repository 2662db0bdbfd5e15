#include "host/geometry/intersect.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "gelnsg3d.h"
#include "host/geometry/ocs.h"
#include "host/geometry/tolerance.h"
#include "tests/geometry/randomframe.h"

using host::arrangeFarEndFirst;
using host::Crossing;
using host::crossing;
using host::StraightPiece;

namespace
{
struct Box
{
    double width, height;
    StraightPiece edges[4];
};

// Returns the outline as a drawing stores it: in the coordinates of its own plane, at one
// elevation.
Box rectangleIn(const AcGeMatrix3d& frame, double width, double height)
{
    const host::Ocs ocs(frame * AcGeVector3d::kZAxis);
    const double elevation = ocs.toObject(frame * AcGePoint3d()).z;
    const AcGePoint3d corners[] = {{0, 0, 0}, {width, 0, 0}, {width, height, 0}, {0, height, 0}};
    const auto stored = [&](int i)
    {
        AcGePoint3d p = ocs.toObject(frame * corners[i % 4]);
        p.z = elevation;
        return ocs.toWorld(p);
    };
    Box rectangle{width, height, {}};
    for (int i = 0; i < 4; ++i)
    {
        rectangle.edges[i] = {stored(i), stored(i + 1)};
    }
    return rectangle;
}

std::vector<Crossing> crossings(const StraightPiece& asking, const Box& rectangle)
{
    std::vector<Crossing> found;
    for (const StraightPiece& edge : rectangle.edges)
    {
        if (const auto one = crossing(asking, edge))
        {
            found.push_back(*one);
        }
    }
    arrangeFarEndFirst(found);
    return found;
}

Crossing at(double parameter)
{
    return {parameter, AcGePoint3d(parameter, 0, 0), 1e-10};
}
}  // namespace

TEST(Crossings, areFoundWhereThePiecesMeet)
{
    struct Row
    {
        const char* what;
        StraightPiece asking, other;
        double parameter;  // -1: they do not meet
    };
    const StraightPiece level{{0, 0, 0}, {10, 0, 0}};
    const StraightPiece endless{{0, 0, 0}, {10, 0, 0}, true};
    const Row rows[] = {
        {"in their middles", level, {{4, -1, 0}, {4, 1, 0}}, 0.4},
        {"at the start of the asking one", level, {{0, -1, 0}, {0, 1, 0}}, 0},
        {"at the end of the asking one", level, {{10, -1, 0}, {10, 1, 0}}, 1},
        {"at an end of the other", level, {{7, 0, 0}, {7, 1, 0}}, 0.7},
        {"before the asking one begins", level, {{-1, -1, 0}, {-1, 1, 0}}, -1},
        {"beyond the asking one", level, {{10.001, -1, 0}, {10.001, 1, 0}}, -1},
        {"beyond, the asking one extended", endless, {{30, -1, 0}, {30, 1, 0}}, 3},
        {"before the other begins", level, {{4, 0.001, 0}, {4, 1, 0}}, -1},
        {"the other extended", level, {{4, 1, 0}, {4, 3, 0}, true}, 0.4},
        {"only when both are extended", level, {{30, 1, 0}, {30, 3, 0}, true}, -1},
        {"both extended", endless, {{30, 1, 0}, {30, 3, 0}, true}, 3},
        {"in space", level, {{4, -1, -2}, {4, 1, 2}}, 0.4},
        {"in parallel planes", level, {{4, -1, 0.001}, {4, 1, 0.001}}, -1},
        {"parallel", endless, {{0, 1, 0}, {10, 1, 0}, true}, -1},
        {"overlapping", level, {{5, 0, 0}, {15, 0, 0}}, -1},
        {"overlapping the other way round", endless, {{5, 0, 0}, {-5, 0, 0}}, -1},
        {"no length on the line", level, {{5, 0, 0}, {5, 0, 0}}, -1},
        {"asked by a point", {{5, 0, 0}, {5, 0, 0}}, {{5, -1, 0}, {5, 1, 0}}, -1},
    };
    for (const Row& row : rows)
    {
        const auto found = crossing(row.asking, row.other);
        ASSERT_EQ(found.has_value(), row.parameter >= 0) << row.what;
        if (found)
        {
            EXPECT_DOUBLE_EQ(found->parameter, row.parameter) << row.what;
            EXPECT_EQ(found->point, AcGePoint3d(10 * row.parameter, 0, 0)) << row.what;
        }
    }
}

TEST(Crossings, followTheSharedPointToleranceAtTheEndsAndAcross)
{
    const StraightPiece level{{0, 0, 0}, {10, 0, 0}};
    const StraightPiece justBeyond{{10 + 5e-7, -1, 0}, {10 + 5e-7, 1, 0}};
    const StraightPiece justShort{{5, 5e-7, 0}, {5, 1, 0}};
    const StraightPiece justAbove{{5, -1, 5e-7}, {5, 1, 5e-7}};
    const AcGeTol before = AcGeContext::gTol;
    for (const StraightPiece& other : {justBeyond, justShort, justAbove})
    {
        EXPECT_FALSE(crossing(level, other));
        AcGeContext::gTol.setEqualPoint(1e-6);
        EXPECT_TRUE(crossing(level, other));
        AcGeContext::gTol = before;
    }
}

TEST(Crossings, areNoneWithWhatIsNotANumber)
{
    const double none = std::nan("");
    EXPECT_FALSE(crossing({{0, 0, 0}, {10, 0, 0}}, {{none, -1, 0}, {4, 1, 0}}));
    EXPECT_FALSE(crossing({{0, 0, none}, {10, 0, 0}}, {{4, -1, 0}, {4, 1, 0}}));
}

TEST(Crossings, ofUprightLinesWithLevelEdgesAreExactlyOnBoth)
{
    Dice dice;
    for (int i = 0; i < 2000; ++i)
    {
        const double x = dice.measured(0, 1e7);
        const double y = dice.measured(0, 1e7);
        const double z = dice.measured(0, 500);
        const StraightPiece edge{{x - dice.between(1, 1e5), y, z},
                                 {x + dice.between(1, 1e5), y, z}};
        const StraightPiece line{
            {x, y - dice.between(1, 100), z}, {x, y - dice.between(0, 1), z}, true};
        for (const auto& found : {crossing(line, edge), crossing(edge, line)})
        {
            ASSERT_TRUE(found);
            ASSERT_EQ(found->point.x, x);
            ASSERT_EQ(found->point.y, y);
            ASSERT_EQ(found->point.z, z);
        }
    }
}

TEST(Crossings, ofAGridLineAndItsOutlineAreTwoInEveryFrame)
{
    Dice dice;
    for (int i = 0; i < 20000; ++i)
    {
        const double far = i % 2 ? 1e7 : 1e4;
        const AcGeMatrix3d frame =
            i % 3 ? dice.tiltedFrame(far) : dice.frame(far, AcGeVector3d::kZAxis);
        const double size = i % 5 ? 10 : 5000;
        const Box outline =
            rectangleIn(frame, dice.measured(size / 5, size), dice.measured(size / 5, size));

        // A short piece inside, made endless; every third run along an edge of the outline.
        const double x = i % 3 == 0 ? 0 : dice.measured(0, outline.width);
        const double y = dice.between(0, outline.height);
        const StraightPiece line{frame * AcGePoint3d(x, y, 0),
                                 frame * AcGePoint3d(x, y + size / 50, 0), true};
        const std::vector<Crossing> found = crossings(line, outline);
        ASSERT_EQ(found.size(), 2u) << "run " << i;
        const AcGePoint3d top = frame * AcGePoint3d(x, outline.height, 0);
        const AcGePoint3d bottom = frame * AcGePoint3d(x, 0, 0);
        ASSERT_LE(found[0].point.distanceTo(top), found[0].tolerance) << "run " << i;
        ASSERT_LE(found[1].point.distanceTo(bottom), found[1].tolerance) << "run " << i;
    }
}

TEST(Crossings, ofAPieceEndingOnTheOutlineAreFoundInEveryFrame)
{
    Dice dice;
    for (int i = 0; i < 20000; ++i)
    {
        const AcGeMatrix3d frame = dice.tiltedFrame(i % 2 ? 1e7 : 1e3);
        const Box outline = rectangleIn(frame, dice.measured(10, 1000), 250.25);
        const double x = dice.measured(1, outline.width - 1);
        const StraightPiece piece{frame * AcGePoint3d(x, 240, 0),
                                  frame * AcGePoint3d(x, outline.height, 0)};
        const std::vector<Crossing> found = crossings(piece, outline);
        ASSERT_EQ(found.size(), 1u) << "run " << i;
        ASSERT_LE(found[0].point.distanceTo(piece.end), found[0].tolerance);
    }
}

TEST(Crossings, throughACornerOfTheOutlineAreOne)
{
    Dice dice;
    for (int i = 0; i < 20000; ++i)
    {
        const AcGeMatrix3d frame = dice.tiltedFrame(i % 2 ? 1e7 : 1e3);
        const Box outline = rectangleIn(frame, dice.measured(10, 1000), 250.25);
        const AcGePoint3d corner(outline.width, outline.height, 0);
        const AcGeVector3d diagonal(3, 4, 0);
        const StraightPiece piece{frame * (corner - diagonal), frame * (corner + diagonal)};
        ASSERT_EQ(crossings(piece, outline).size(), 1u) << "run " << i;
    }
}

TEST(Crossings, areNoneBetweenPlanesAMillimetreApart)
{
    Dice dice;
    for (int i = 0; i < 2000; ++i)
    {
        const AcGeMatrix3d frame = dice.tiltedFrame(1e7);
        const Box outline = rectangleIn(frame, 1000, 1000);
        const StraightPiece line{frame * AcGePoint3d(500, 490, 1e-3),
                                 frame * AcGePoint3d(500, 510, 1e-3), true};
        ASSERT_TRUE(crossings(line, outline).empty()) << "run " << i;
    }
}

TEST(Crossings, areTheSameWhoeverAsks)
{
    Dice dice;
    for (int i = 0; i < 2000; ++i)
    {
        const AcGeMatrix3d frame = dice.tiltedFrame(1e5);
        const auto inPlane = [&]
        { return frame * AcGePoint3d(dice.between(0, 10), dice.between(0, 10), 0); };
        const StraightPiece a{inPlane(), inPlane()};
        const StraightPiece b{inPlane(), inPlane()};
        const auto one = crossing(a, b);
        const auto two = crossing(b, a);
        ASSERT_EQ(one.has_value(), two.has_value());
        if (one)
        {
            ASSERT_LE(one->point.distanceTo(two->point), one->tolerance);
            ASSERT_LE(AcGeLineSeg3d(a.start, a.end).distanceTo(one->point), one->tolerance);
            ASSERT_LE(AcGeLineSeg3d(b.start, b.end).distanceTo(one->point), one->tolerance);
        }
    }
}

TEST(Crossings, areArrangedFromTheFarEndAndMergedWithinTheirTolerance)
{
    std::vector<Crossing> found = {at(1), at(3), at(3 - 9e-11), at(-2), at(3 + 3e-10)};
    arrangeFarEndFirst(found);
    ASSERT_EQ(found.size(), 4u);
    EXPECT_EQ(found[0].parameter, 3 + 3e-10);
    EXPECT_EQ(found[1].parameter, 3);
    EXPECT_EQ(found[2].parameter, 1);
    EXPECT_EQ(found[3].parameter, -2);

    std::vector<Crossing> none;
    arrangeFarEndFirst(none);
    EXPECT_TRUE(none.empty());
}

TEST(PointTolerance, isTheSharedOneUntilRoundingCostsMore)
{
    EXPECT_EQ(host::pointTolerance(0), 1e-10);
    EXPECT_EQ(host::pointTolerance(2e4, 2), 1e-10);
    EXPECT_GT(host::pointTolerance(1e7), 1e-8);
    EXPECT_LT(host::pointTolerance(1e7), 4e-8);
    EXPECT_DOUBLE_EQ(host::pointTolerance(1e7, 10), 10 * host::pointTolerance(1e7));
    const AcGeTol before = AcGeContext::gTol;
    AcGeContext::gTol.setEqualPoint(1e-3);
    EXPECT_EQ(host::pointTolerance(1e7, 2), 1e-3);
    AcGeContext::gTol = before;
}
