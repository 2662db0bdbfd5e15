// The outlines and the patterns of hatches.
#include <gtest/gtest.h>

#include "tests/plot/drawn.h"

using tests::drawnEntities;

namespace
{
// A hatch with these loops, filled or with these families of lines.
std::string solid(int loops, const std::string& tags)
{
    return "0 HATCH 10 0 20 0 30 0 2 SOLID 70 1 71 0 91 " + std::to_string(loops) + " " + tags +
           " 75 0 76 1 98 1 10 2 20 2";
}

std::string ruled(int families, const std::string& lines)
{
    const std::string square = "92 2 72 0 73 1 93 4 10 0 20 0 10 4 20 0 10 4 20 4 10 0 20 4 97 0 ";
    return "0 HATCH 10 0 20 0 30 0 2 LINES 70 0 71 0 91 1 " + square +
           "75 0 76 1 52 0 41 1 77 0 78 " + std::to_string(families) + " " + lines;
}

struct Row
{
    const char* what;
    std::string hatch;
    const char* drawn;
};

void expectEach(std::initializer_list<Row> rows)
{
    for (const Row& row : rows)
    {
        EXPECT_EQ(drawnEntities(row.hatch), row.drawn) << row.what;
    }
}
}  // namespace

TEST(PlotOfHatches, aLoopIsAPolylineOrMadeOfEdges)
{
    expectEach({
        {"a polyline", solid(1, "92 2 72 0 73 1 93 3 10 0 20 0 10 4 20 0 10 4 20 4"),
         "area 0,0 4,0 4,4\n"},
        {"a polyline with bulges", solid(1, "92 2 72 1 73 1 93 2 10 0 20 0 42 1 10 4 20 0 42 0"),
         "area 49 points 0,0 2,-2 4,0\n"},
        {"edges that are lines",
         solid(1, "92 1 93 2 72 1 10 0 20 0 11 4 21 0 72 1 10 4 20 0 11 4 21 4"),
         "area 0,0 4,0 4,0 4,4\n"},
        {"an arc", solid(1, "92 1 93 1 72 2 10 1 20 1 40 2 50 0 51 90 73 1"),
         "area 25 points 3,1 2.41421,2.41421 1,3\n"},
        {"a clockwise arc", solid(1, "92 1 93 1 72 2 10 1 20 1 40 2 50 0 51 90 73 0"),
         "area 25 points 3,1 2.41421,-0.414214 1,-1\n"},
        {"an ellipse", solid(1, "92 1 93 1 72 3 10 1 20 1 11 0 21 4 40 0.5 50 0 51 90 73 1"),
         "area 25 points 1,5 -0.414214,3.82843 -1,1\n"},
        {"a clockwise ellipse",
         solid(1, "92 1 93 1 72 3 10 1 20 1 11 0 21 4 40 0.5 50 0 51 90 73 0"),
         "area 25 points 1,5 2.41421,3.82843 3,1\n"},
        {"a spline",
         solid(1,
               "92 1 93 1 72 4 94 2 73 0 74 0 95 6 96 3 40 0 40 0 40 0 40 1 40 1 40 1 "
               "10 0 20 0 10 2 20 4 10 4 20 0"),
         "area 13 points 0,0 2,2 4,0\n"},
        {"a weighted spline",
         solid(1,
               "92 1 93 1 72 4 94 2 73 1 74 0 95 6 96 3 40 0 40 0 40 0 40 1 40 1 40 1 "
               "10 0 20 0 42 1 10 2 20 4 42 3 10 4 20 0 42 1"),
         "area 13 points 0,0 2,3 4,0\n"},
        {"an edge of an unknown kind",
         solid(1, "92 1 93 2 72 9 10 7 20 7 72 1 10 0 20 0 11 4 21 0"), "area 0,0 4,0\n"},
    });
}

TEST(PlotOfHatches, aLoopWithinALoopIsAHole)
{
    expectEach({
        {"two loops",
         solid(2,
               "92 2 72 0 73 1 93 3 10 0 20 0 10 9 20 0 10 9 20 9 97 0 "
               "92 2 72 0 73 1 93 3 10 5 20 1 10 8 20 1 10 8 20 4 97 0"),
         "area 0,0 9,0 9,9 / 5,1 8,1 8,4\n"},
        {"no loops", solid(0, ""), ""},
        {"fewer than said", solid(3, "92 2 72 0 73 1 93 3 10 0 20 0 10 9 20 0 10 9 20 9 97 0"),
         "area 0,0 9,0 9,9\n"},
    });
}

TEST(PlotOfHatches, theLinesOfAPatternRunThroughTheirBase)
{
    expectEach({
        {"level", ruled(1, "53 0 43 0 44 1 45 0 46 2 79 0"), "path 0,1 4,1\npath 0,3 4,3\n"},
        {"upright", ruled(1, "53 90 43 1 44 0 45 -2 46 0 79 0"), "path 3,0 3,4\npath 1,0 1,4\n"},
        {"oblique", ruled(1, "53 45 43 0 44 0 45 -1.5 46 1.5 79 0"),
         "path 3,0 4,1\npath 0,0 4,4\npath 0,3 1,4\n"},
        {"with an offset along the line", ruled(1, "53 0 43 0 44 1 45 9 46 2 79 0"),
         "path 0,1 4,1\npath 0,3 4,3\n"},
        {"two families", ruled(2, "53 0 43 0 44 2 45 0 46 9 79 0 53 90 43 2 44 0 45 9 46 0 79 0"),
         "path 0,2 4,2\npath 2,0 2,4\n"},
        {"no families", ruled(0, ""), ""},
        {"a spacing of nothing", ruled(1, "53 0 43 0 44 1 45 0 46 0 79 0"),
         "area 0,0 4,0 4,4 0,4\n"},
    });
}

TEST(PlotOfHatches, aHatchLiesInItsPlaneAtItsElevation)
{
    const std::string loop = " 70 1 91 1 92 2 72 0 73 1 93 3 10 0 20 0 10 4 20 0 10 4 20 4";
    expectEach({
        {"raised", "0 HATCH 10 0 20 0 30 5" + loop, "area 0,0,5 4,0,5 4,4,5\n"},
        {"seen from below", "0 HATCH 10 0 20 0 30 5 210 0 220 0 230 -1" + loop,
         "area 0,0,-5 -4,0,-5 -4,4,-5\n"},
    });
}
