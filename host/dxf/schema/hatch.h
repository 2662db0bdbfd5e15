// Hatches, which the host draws but never creates. From R13 on.
#pragma once

#include "host/dxf/schema/entities.h"

// A table has a row a line, which clang-format would pack.
// clang-format off
namespace host::dxf::schema::hatch
{
struct Hatch
{
    AcGePoint3d elevation;  // only its Z counts
    AcGeVector3d normal{0, 0, 1};
    int isSolid = 0;
};

inline constexpr auto table = tableOf<Hatch>("HATCH",
    subclassRow("AcDbHatch"),
    row(Code(10), &Hatch::elevation),
    row(entity::normal, &Hatch::normal, When::unlessUsual),
    row(Code(70), &Hatch::isSolid));

// The rest is counted: a count and then so many parts. Each code means something else in each kind
// of part.
struct Count
{
    int value = 0;
};

inline constexpr auto loopCount = sequenceOf<Count>(row(Code(91), &Count::value));
inline constexpr auto edgeCount = sequenceOf<Count>(row(Code(93), &Count::value));
inline constexpr auto patternLineCount = sequenceOf<Count>(row(Code(78), &Count::value));

enum LoopFlag
{
    polylineFlag = 2
};

struct Loop
{
    int flags = 0;
};

inline constexpr auto loop = sequenceOf<Loop>(row(Code(92), &Loop::flags));

// A loop that is a polyline.
struct PolylineLoop
{
    int hasBulges = 0;
    int isClosed = 1;  // not needed: every loop of a hatch is closed
    int vertices = 0;
};

inline constexpr auto polylineLoop = sequenceOf<PolylineLoop>(
    row(Code(72), &PolylineLoop::hasBulges),
    row(Code(73), &PolylineLoop::isClosed),
    row(Code(93), &PolylineLoop::vertices));

struct Vertex
{
    PlanePoint point;
    double bulge = 0;
};

inline constexpr auto vertex = sequenceOf<Vertex>(row(Code(10), &Vertex::point));
inline constexpr auto bulgedVertex = sequenceOf<Vertex>(
    row(Code(10), &Vertex::point),
    row(Code(42), &Vertex::bulge));

// Any other loop is made of edges.
enum EdgeKind
{
    lineKind = 1,
    arcKind,
    ellipseKind,
    splineKind
};

struct Edge
{
    int kind = 0;
};

inline constexpr auto edge = sequenceOf<Edge>(row(Code(72), &Edge::kind));

struct LineEdge
{
    PlanePoint start;
    PlanePoint end;
};

inline constexpr auto lineEdge = sequenceOf<LineEdge>(
    row(Code(10), &LineEdge::start),
    row(Code(11), &LineEdge::end));

// The angles of a clockwise edge are measured clockwise.
struct Turn
{
    double start = 0;  // degrees
    double end = 0;    // degrees
    int isCounterClockwise = 1;
};

inline constexpr auto turn = rowsOf(
    row(Code(50), &Turn::start),
    row(Code(51), &Turn::end),
    row(Code(73), &Turn::isCounterClockwise));

struct ArcEdge : Turn
{
    PlanePoint centre;
    double radius = 0;
};

inline constexpr auto arcEdge = sequenceOf<ArcEdge>(
    row(Code(10), &ArcEdge::centre),
    row(Code(40), &ArcEdge::radius),
    turn);

struct EllipseEdge : Turn
{
    PlanePoint centre;
    PlanePoint majorAxis;
    double ratio = 1;  // of the minor axis to the major axis
};

inline constexpr auto ellipseEdge = sequenceOf<EllipseEdge>(
    row(Code(10), &EllipseEdge::centre),
    row(Code(11), &EllipseEdge::majorAxis),
    row(Code(40), &EllipseEdge::ratio),
    turn);

struct SplineEdge
{
    int degree = 0;
    int isRational = 0;  // not needed: the weights beside the poles say the same
    int isPeriodic = 0;
    int knots = 0;
    int poles = 0;
};

inline constexpr auto splineEdge = sequenceOf<SplineEdge>(
    row(Code(94), &SplineEdge::degree),
    row(Code(73), &SplineEdge::isRational),
    row(Code(74), &SplineEdge::isPeriodic),
    row(Code(95), &SplineEdge::knots),
    row(Code(96), &SplineEdge::poles));

struct Knot
{
    double value = 0;
};

inline constexpr auto knot = sequenceOf<Knot>(row(Code(40), &Knot::value));

struct Pole
{
    PlanePoint point;
    std::optional<double> weight;
};

inline constexpr auto pole = sequenceOf<Pole>(
    row(Code(10), &Pole::point),
    row(Code(42), &Pole::weight));

// A family of parallel lines in a pattern.
struct PatternLine
{
    double angle = 0;  // degrees
    double baseX = 0;
    double baseY = 0;
    double offsetX = 0;  // from one line to the next
    double offsetY = 0;
};

inline constexpr auto patternLine = sequenceOf<PatternLine>(
    row(Code(53), &PatternLine::angle),
    row(Code(43), &PatternLine::baseX),
    row(Code(44), &PatternLine::baseY),
    row(Code(45), &PatternLine::offsetX),
    row(Code(46), &PatternLine::offsetY));
}  // namespace host::dxf::schema::hatch
// clang-format on
