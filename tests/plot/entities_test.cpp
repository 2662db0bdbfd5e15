// Each kind of entity on paper.
#include <gtest/gtest.h>

#include "tests/plot/drawn.h"

using tests::drawnEntities;

namespace
{
struct Row
{
    const char* tags;
    const char* drawn;
};

void expectEach(std::initializer_list<Row> rows)
{
    for (const Row& row : rows)
    {
        EXPECT_EQ(drawnEntities(row.tags), row.drawn) << row.tags;
    }
}
}  // namespace

TEST(PlotOfEntities, straightOnesAreDrawnFromTheirPoints)
{
    expectEach({
        {"0 LINE 10 1 20 2 30 3 11 4 21 5", "path 1,2,3 4,5\n"},
        {"0 POINT 10 1 20 2", "dot 1,2\n"},
        {"0 LEADER 10 0 20 0 10 5 20 5 10 9 20 5", "path 0,0 5,5 9,5\n"},
        {"0 XLINE 10 1 20 2 11 1 21 0", "xline 1,2 > 1,0\n"},
        {"0 RAY 10 1 20 2 11 0 21 1", "ray 1,2 > 0,1\n"},
        {"0 3DFACE 10 0 20 0 11 4 21 0 12 4 22 4 13 0 23 4 70 5", "path 4,0 4,4\npath 0,4 0,0\n"},
    });
}

TEST(PlotOfEntities, theLastCornersOfASolidAreCrossed)
{
    expectEach({
        {"0 SOLID 10 0 20 0 11 4 21 0 12 0 22 4 13 4 23 4", "area 0,0 4,0 4,4 0,4\n"},
        {"0 TRACE 10 0 20 0 11 4 21 0 12 0 22 4", "area 0,0 4,0 0,4\n"},
        {"0 SOLID 10 1 20 0 11 4 21 0 12 1 22 4 230 -1", "area -1,0 -4,0 -1,4\n"},
    });
}

TEST(PlotOfEntities, circlesAndArcsLieInTheirOwnPlane)
{
    expectEach({
        {"0 CIRCLE 10 5 20 5 40 2", "closed 97 points 7,5 3,5 7,5\n"},
        {"0 CIRCLE 10 5 20 5 40 2 230 -1", "closed 97 points -7,5 -3,5 -7,5\n"},
        {"0 ARC 10 0 20 0 40 2 50 0 51 90", "path 25 points 2,0 1.41421,1.41421 0,2\n"},
        {"0 ARC 10 0 20 0 40 2 50 270 51 90", "path 49 points 0,-2 2,0 0,2\n"},
        {"0 ARC 10 0 20 0 40 2 50 0 51 90 230 -1", "path 25 points -2,0 -1.41421,1.41421 0,2\n"},
        {"0 ELLIPSE 10 1 20 1 11 4 21 0 40 0.5 41 0 42 3.141592653589793",
         "path 49 points 5,1 1,3 -3,1\n"},
        {"0 ELLIPSE 10 0 20 0 11 4 21 0 40 0.5 41 0 42 3.141592653589793 230 -1",
         "path 49 points 4,0 0,-2 -4,0\n"},
    });
}

TEST(PlotOfEntities, aBulgeIsTheTangentOfAQuarterOfTheAngle)
{
    expectEach({
        {"0 LWPOLYLINE 90 3 70 0 10 0 20 0 10 4 20 0 10 4 20 3", "path 0,0 4,0 4,3\n"},
        {"0 LWPOLYLINE 70 1 38 7 10 0 20 0 10 4 20 0 10 4 20 3", "closed 0,0,7 4,0,7 4,3,7\n"},
        {"0 LWPOLYLINE 70 0 10 0 20 0 42 1 10 4 20 0", "path 49 points 0,0 2,-2 4,0\n"},
        {"0 LWPOLYLINE 70 0 10 0 20 0 42 -1 10 4 20 0", "path 49 points 0,0 2,2 4,0\n"},
        {"0 LWPOLYLINE 70 0 10 0 20 0 42 0.41421356237309503 10 4 20 0",
         "path 25 points 0,0 2,-0.828427 4,0\n"},
        {"0 LWPOLYLINE 70 0 10 0 20 0 42 1 10 4 20 0 230 -1", "path 49 points 0,0 -2,-2 -4,0\n"},
    });
}

TEST(PlotOfEntities, aWidePolylineIsFilled)
{
    expectEach({
        {"0 LWPOLYLINE 70 0 43 2 10 0 20 0 10 4 20 0", "path 0,0 4,0\narea 0,1 4,1 4,-1 0,-1\n"},
        {"0 LWPOLYLINE 70 0 10 0 20 0 40 4 41 0 10 4 20 0",
         "path 0,0 4,0\narea 0,2 4,0 4,0 0,-2\n"},
        {"0 POLYLINE 66 1 40 2 41 2 0 VERTEX 10 0 20 0 0 VERTEX 10 0 20 4 0 SEQEND",
         "path 0,0 0,4\narea -1,0 -1,4 1,4 1,0\n"},
    });
}

TEST(PlotOfEntities, aPolylineIsFlatSpatialAMeshOrFaces)
{
    expectEach({
        {"0 POLYLINE 66 1 30 5 70 1 0 VERTEX 10 0 20 0 0 VERTEX 10 4 20 0 0 VERTEX 10 4 20 3 0 "
         "SEQEND",
         "closed 0,0,5 4,0,5 4,3,5\n"},
        {"0 POLYLINE 70 8 0 VERTEX 10 0 20 0 30 1 0 VERTEX 10 4 20 0 30 2 0 SEQEND",
         "path 0,0,1 4,0,2\n"},
        {"0 POLYLINE 70 0 0 VERTEX 10 9 20 9 70 16 0 VERTEX 10 1 20 1 0 VERTEX 10 2 20 1 0 SEQEND",
         "path 1,1 2,1\n"},
        {"0 POLYLINE 70 16 71 2 72 2 0 VERTEX 10 0 20 0 0 VERTEX 10 1 20 0 0 VERTEX 10 0 20 1 "
         "0 VERTEX 10 1 20 1 0 SEQEND",
         "path 0,0 1,0\npath 0,1 1,1\npath 0,0 0,1\npath 1,0 1,1\n"},
        {"0 POLYLINE 70 64 0 VERTEX 10 0 20 0 70 192 0 VERTEX 10 1 20 0 70 192 "
         "0 VERTEX 10 1 20 1 70 192 0 VERTEX 70 128 71 1 72 -2 73 3 0 SEQEND",
         "path 0,0 1,0\npath 1,1 0,0\n"},
    });
}

TEST(PlotOfEntities, aSplineFollowsItsPolesOrElseItsFitPoints)
{
    expectEach({
        {"0 SPLINE 71 1 40 0 40 0 40 1 40 1 10 0 20 0 10 6 20 0", "path 13 points 0,0 3,0 6,0\n"},
        {"0 SPLINE 71 2 40 0 40 0 40 0 40 1 40 1 40 1 10 0 20 0 10 2 20 4 10 4 20 0",
         "path 13 points 0,0 2,2 4,0\n"},
        {"0 SPLINE 71 2 40 0 40 0 40 0 40 1 40 1 40 1 41 1 41 3 41 1 10 0 20 0 10 2 20 4 10 4 20 0",
         "path 13 points 0,0 2,3 4,0\n"},
        {"0 SPLINE 71 3 11 0 21 0 11 5 21 5", "path 0,0 5,5\n"},
    });
}

TEST(PlotOfEntities, aMultilineHasALineForEachElement)
{
    expectEach({
        {"0 MLINE 71 0 72 2 73 2 11 0 21 0 13 0 23 1 74 1 41 0 75 0 74 1 41 2 75 0 "
         "11 9 21 0 13 0 23 1 74 1 41 0 75 0 74 1 41 2 75 0",
         "path 0,0 9,0\npath 0,2 9,2\n"},
    });
}

TEST(PlotOfEntities, aHatchIsFilledBetweenItsLoopsOrRuledWithItsPattern)
{
    const std::string square = "92 2 72 0 73 1 93 4 10 0 20 0 10 4 20 0 10 4 20 4 10 0 20 4 97 0 ";
    const std::string edges =
        "92 1 93 3 72 1 10 0 20 0 11 4 21 0 72 2 10 4 20 2 40 2 50 270 51 90 73 1 "
        "72 1 10 4 20 4 11 0 21 0 97 0 ";
    const std::string start = "0 HATCH 10 0 20 0 30 0 230 1 2 X 70 ";
    const auto hatch = [&](const std::string& fill, const std::string& loops)
    { return drawnEntities(start + fill + " 71 0 " + loops + " 75 0 76 1 "); };
    EXPECT_EQ(hatch("1", "91 1 " + square), "area 0,0 4,0 4,4 0,4\n");
    EXPECT_EQ(hatch("1", "91 1 " + edges), "area 53 points 0,0 6,2 0,0\n");
    EXPECT_EQ(drawnEntities(start + "0 71 0 91 1 " + square +
                            "75 0 76 1 52 0 41 1 77 0 78 1 53 0 43 0 44 1 45 0 46 2 79 0"),
              "path 0,1 4,1\npath 0,3 4,3\n");
    EXPECT_EQ(drawnEntities(start + "0 71 0 91 1 " + square +
                            "75 0 76 1 52 0 41 1 77 0 78 1 53 0 43 0 44 1 45 0 46 0.0001 79 0"),
              "area 0,0 4,0 4,4 0,4\n")
        << "too fine a pattern";
}

TEST(PlotOfEntities, aTextIsPlacedByItsAlignment)
{
    expectEach({
        {"0 TEXT 10 1 20 2 40 3 1 A_b", "text 1,2 > 3,0 ^ 0,3 left:0 below:0 A b\n"},
        {"0 TEXT 10 1 20 2 40 2 50 90 1 A", "text 1,2 > 0,2 ^ -2,0 left:0 below:0 A\n"},
        {"0 TEXT 10 1 20 2 40 2 41 0.5 51 45 1 A", "text 1,2 > 1,0 ^ 2,2 left:0 below:0 A\n"},
        {"0 TEXT 10 1 20 2 11 7 21 8 40 2 72 1 1 A", "text 7,8 > 2,0 ^ 0,2 left:0.5 below:0 A\n"},
        {"0 TEXT 10 1 20 2 11 7 21 8 40 2 72 2 73 3 1 A",
         "text 7,8 > 2,0 ^ 0,2 left:1 below:1 A\n"},
        {"0 TEXT 10 1 20 2 11 7 21 8 40 2 73 1 1 A", "text 7,8 > 2,0 ^ 0,2 left:0 below:-0.3 A\n"},
        {"0 TEXT 10 1 20 2 11 7 21 8 40 2 72 4 1 A", "text 7,8 > 2,0 ^ 0,2 left:0.5 below:0.5 A\n"},
        {"0 TEXT 10 1 20 2 40 2 71 2 1 A", "text 1,2 > -2,0 ^ 0,2 left:0 below:0 A\n"},
        {"0 TEXT 10 1 20 2 40 2 71 4 1 A", "text 1,2 > 2,0 ^ 0,-2 left:0 below:0 A\n"},
        {"0 TEXT 10 1 20 2 40 2 230 -1 1 A", "text -1,2 > -2,0 ^ 0,2 left:0 below:0 A\n"},
        {"0 ATTRIB 10 1 20 2 40 2 1 A", "text 1,2 > 2,0 ^ 0,2 left:0 below:0 A\n"},
        {"0 ATTRIB 10 1 20 2 40 2 70 1 1 A", ""},
        {"0 ATTDEF 10 1 20 2 40 2 1 value 2 TAG", "text 1,2 > 2,0 ^ 0,2 left:0 below:0 TAG\n"},
    });
}

TEST(PlotOfEntities, aFittedTextReachesFromOnePointToTheOther)
{
    // Twice the words are half as wide; an aligned text is lower as well.
    const std::string once = drawnEntities("0 TEXT 10 0 20 0 11 12 21 0 40 2 72 5 1 HH");
    const std::string twice = drawnEntities("0 TEXT 10 0 20 0 11 24 21 0 40 2 72 5 1 HHHH");
    EXPECT_EQ(once.substr(0, once.find(" left")), twice.substr(0, twice.find(" left")));
    EXPECT_NE(once.find("^ 0,2 "), once.npos) << once;
    const std::string aligned = drawnEntities("0 TEXT 10 0 20 0 11 0 21 12 40 2 72 3 1 HH");
    EXPECT_EQ(aligned.find("^ 0,2 "), aligned.npos) << aligned;
    EXPECT_NE(aligned.find(" > 0,"), aligned.npos) << aligned;
}

TEST(PlotOfEntities, aTextOfManyLinesGrowsFromWhereItIsAttached)
{
    expectEach({
        {"0 MTEXT 10 0 20 0 40 3 41 0 71 1 1 A\\PB",
         "text 0,-3 > 3,0 ^ 0,3 left:0 below:0 A\ntext 0,-8 > 3,0 ^ 0,3 left:0 below:0 B\n"},
        {"0 MTEXT 10 0 20 0 40 3 41 0 71 9 1 A\\PB",
         "text 0,5 > 3,0 ^ 0,3 left:1 below:0 A\ntext 0,0 > 3,0 ^ 0,3 left:1 below:0 B\n"},
        {"0 MTEXT 10 0 20 0 40 2 71 5 1 A", "text 0,-1 > 2,0 ^ 0,2 left:0.5 below:0 A\n"},
        {"0 MTEXT 10 0 20 0 40 2 71 7 11 0 21 1 1 A", "text 0,0 > 0,2 ^ -2,0 left:0 below:0 A\n"},
        {"0 MTEXT 10 0 20 0 40 2 71 7 50 90 3 Be 1 fore",
         "text 0,0 > 0,2 ^ -2,0 left:0 below:0 Before\n"},
        {"0 MTEXT 10 0 20 0 40 1 41 5 71 1 1 HHH_HHH",
         "text 0,-1 > 1,0 ^ 0,1 left:0 below:0 HHH\n"
         "text 0,-2.66667 > 1,0 ^ 0,1 left:0 below:0 HHH\n"},
    });
}

TEST(PlotOfEntities, whatIsNoNumberOrNotFiniteDoesNoHarm)
{
    expectEach({
        {"0 LINE 10 x 20 2 11 4 21 5 0 POINT 10 1 20 1", "dot 1,1\nnot drawn: 1 LINE\n"},
        {"0 LINE 10 1e300 20 0 11 0 21 0", ""},
        {"0 LWPOLYLINE 70 1", ""},
        {"0 POLYLINE 70 16 71 2000000000 0 SEQEND", ""},
        {"0 LWPOLYLINE 70 0 10 0 20 0 42 1e-320 10 1 20 0", "path 0,0 1,0\n"},
        {"0 SPLINE 71 2000000000 40 0 10 0 20 0", ""},
        {"0 HATCH 70 0 91 2000000000 92 2 72 1 93 2000000000", ""},
        {"0 IMAGE 10 0 0 IMAGE 10 0 0 WIPEOUT 10 0", "not drawn: 2 IMAGE, 1 WIPEOUT\n"},
    });
}
