// What a pen passes on, and what it leaves out.
#include "host/plot/pen.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace host::plot;

namespace
{
class Recorder : public Sink
{
public:
    std::vector<Points> points;  // of every shape; a text gives its origin and its vectors

    void path(const Points& path, bool, host::Color) override { points.push_back(path); }
    void area(const std::vector<Points>& loops, host::Color) override { points = loops; }
    void dot(const AcGePoint3d& point, host::Color) override { points.push_back({point}); }
    void ray(const AcGePoint3d& from, const AcGeVector3d& along, bool, host::Color) override
    {
        points.push_back({from, AcGePoint3d() + along});
    }
    void text(const TextLine& line, host::Color) override
    {
        points.push_back({line.origin, AcGePoint3d() + line.along, AcGePoint3d() + line.up});
    }
};

const AcGePoint3d origin;
const AcGeVector3d along(1, 0, 0);

// The pen of a block that stands at 10,20 and is turned by a quarter.
Pen penOfABlock(Sink& sink)
{
    return Pen(sink, AcGeMatrix3d::translation({10, 20, 0}), host::black)
        .within(AcGeMatrix3d::rotation(M_PI / 2, AcGeVector3d::kZAxis));
}

TextLine textAt(const AcGePoint3d& at)
{
    TextLine line;
    line.origin = at;
    line.along = along;
    line.up = AcGeVector3d(0, 1, 0);
    return line;
}

void expectPoints(const Points& points, const Points& expected, const char* what)
{
    ASSERT_EQ(points.size(), expected.size()) << what;
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        EXPECT_NEAR((points[i] - expected[i]).length(), 0, 1e-12) << what << ' ' << i;
    }
}

struct Shape
{
    const char* what;
    void (*draw)(const Pen& pen, const AcGePoint3d& at);
    Points inTheWorld;  // at 1,2 of the block
};

const Shape shapes[] = {
    {"a path",
     [](const Pen& pen, const AcGePoint3d& at) {
         pen.path({origin, at});
     },
     {{10, 20, 0}, {8, 21, 0}}},
    {"an area",
     [](const Pen& pen, const AcGePoint3d& at) {
         pen.area({{origin, at}});
     },
     {{10, 20, 0}, {8, 21, 0}}},
    {"a point", [](const Pen& pen, const AcGePoint3d& at) { pen.dot(at); }, {{8, 21, 0}}},
    {"a ray",
     [](const Pen& pen, const AcGePoint3d& at) { pen.ray(at, along, false); },
     {{8, 21, 0}, {0, 1, 0}}},
    {"a ray's direction",
     [](const Pen& pen, const AcGePoint3d& at) { pen.ray(origin, at.asVector(), false); },
     {{10, 20, 0}, {-2, 1, 0}}},
    {"a text",
     [](const Pen& pen, const AcGePoint3d& at) { pen.text(textAt(at)); },
     {{8, 21, 0}, {0, 1, 0}, {-1, 0, 0}}},
};
}  // namespace

TEST(Pen, carriesEveryShapeToTheWorld)
{
    for (const Shape& shape : shapes)
    {
        Recorder recorder;
        shape.draw(penOfABlock(recorder), {1, 2, 0});
        ASSERT_EQ(recorder.points.size(), 1U) << shape.what;
        expectPoints(recorder.points[0], shape.inTheWorld, shape.what);
    }
}

TEST(Pen, leavesOutAShapeWhoseSquaresWouldNotBeFinite)
{
    for (const Shape& shape : shapes)
    {
        for (const double far : {1e101, -1e200, HUGE_VAL, std::nan("")})
        {
            for (const AcGePoint3d& at :
                 {AcGePoint3d(far, 0, 0), AcGePoint3d(0, far, 0), AcGePoint3d(0, 0, far)})
            {
                Recorder recorder;
                shape.draw(Pen(recorder, {}, host::black), at);
                EXPECT_TRUE(recorder.points.empty()) << shape.what << ' ' << far;
            }
        }
        Recorder recorder;
        shape.draw(Pen(recorder, {}, host::black), {1e99, -1e99, 1e99});
        EXPECT_FALSE(recorder.points.empty()) << shape.what;
    }
}

TEST(Pen, leavesOutOnlyTheLoopOfAnAreaThatCannotBeDrawn)
{
    const Points loop{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}};
    Recorder recorder;
    Pen(recorder, {}, host::black).area({loop, {{0, 0, 0}, {1e101, 0, 0}}, {}, loop});
    EXPECT_EQ(recorder.points.size(), 2U);
}

TEST(Pen, leavesOutAPathWithoutPoints)
{
    Recorder recorder;
    Pen(recorder, {}, host::black).path({});
    Pen(recorder, {}, host::black).area({});
    EXPECT_TRUE(recorder.points.empty());
}

TEST(Pen, drawsInTheCoordinatesOfAPlane)
{
    const struct
    {
        AcGeVector3d normal;
        AcGePoint3d inTheWorld;  // of 1,2,3 in the plane
    } rows[] = {
        {{0, 0, 1}, {1, 2, 3}},   {{0, 0, -1}, {-1, 2, -3}}, {{1, 0, 0}, {3, 1, 2}},
        {{0, -5, 0}, {1, -3, 2}}, {{0, 0, 0}, {1, 2, 3}},
    };
    for (const auto& row : rows)
    {
        Recorder recorder;
        Pen(recorder, {}, host::black).withinPlane(row.normal).dot({1, 2, 3});
        expectPoints(recorder.points.at(0), {row.inTheWorld}, "in the plane");
    }
}
