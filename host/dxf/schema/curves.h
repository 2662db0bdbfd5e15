// The points, curves and faces that the host draws but never creates. The tables have the rows that
// a plot needs beside those of entity::look.
#pragma once

#include <numbers>

#include "host/dxf/schema/entities.h"

// A table has a row a line, which clang-format would pack.
// clang-format off
namespace host::dxf::schema
{
namespace point
{
struct Point
{
    AcGePoint3d position;
};

inline constexpr auto table = tableOf<Point>("POINT",
    subclassRow("AcDbPoint"),
    row(Code(10), &Point::position));
}  // namespace point

namespace circle
{
struct Circle
{
    AcGePoint3d centre;
    double radius = 0;
    AcGeVector3d normal{0, 0, 1};
};

inline constexpr auto rows = rowsOf(
    subclassRow("AcDbCircle"),
    row(Code(10), &Circle::centre),
    row(Code(40), &Circle::radius),
    row(entity::normal, &Circle::normal, When::unlessUsual));
inline constexpr auto table = tableOf<Circle>("CIRCLE", rows);
}  // namespace circle

namespace arc
{
struct Arc : circle::Circle
{
    double startAngle = 0;  // degrees
    double endAngle = 0;    // degrees
};

inline constexpr auto table = tableOf<Arc>("ARC",
    circle::rows,
    subclassRow("AcDbArc"),
    row(Code(50), &Arc::startAngle),
    row(Code(51), &Arc::endAngle));
}  // namespace arc

// From R13 on.
namespace ellipse
{
struct Ellipse
{
    AcGePoint3d centre;
    AcGeVector3d majorAxis;
    AcGeVector3d normal{0, 0, 1};
    double ratio = 1;  // of the minor axis to the major axis
    double start = 0;  // parameters [rad]
    double end = 2 * std::numbers::pi;
};

inline constexpr auto table = tableOf<Ellipse>("ELLIPSE",
    subclassRow("AcDbEllipse"),
    row(Code(10), &Ellipse::centre),
    row(Code(11), &Ellipse::majorAxis),
    row(entity::normal, &Ellipse::normal, When::unlessUsual),
    row(Code(40), &Ellipse::ratio),
    row(Code(41), &Ellipse::start),
    row(Code(42), &Ellipse::end));
}  // namespace ellipse

namespace solid
{
struct Corners
{
    AcGePoint3d first;
    AcGePoint3d second;
    AcGePoint3d third;
    std::optional<AcGePoint3d> fourth;  // absent: a triangle
};

inline constexpr auto corners = rowsOf(
    row(Code(10), &Corners::first),
    row(Code(11), &Corners::second),
    row(Code(12), &Corners::third),
    row(Code(13), &Corners::fourth));

struct Solid : Corners
{
    AcGeVector3d normal{0, 0, 1};
};

inline constexpr auto rows = rowsOf(
    subclassRow("AcDbTrace"),
    corners,
    row(entity::normal, &Solid::normal, When::unlessUsual));
inline constexpr auto table = tableOf<Solid>("SOLID", rows);
inline constexpr auto trace = tableOf<Solid>("TRACE", rows);

struct Face : Corners
{
    int hiddenEdges = 0;  // bit 0 for the edge that begins at the first corner, and so on
};

inline constexpr auto face = tableOf<Face>("3DFACE",
    subclassRow("AcDbFace"),
    corners,
    row(Code(70), &Face::hiddenEdges, When::unlessUsual));
}  // namespace solid

// From R13 on.
namespace spline
{
struct Spline
{
    int degree = 0;
    std::vector<double> knots;
    std::vector<double> weights;  // none: all 1
    std::vector<AcGePoint3d> poles;
    std::vector<AcGePoint3d> fitPoints;
};

inline constexpr auto table = tableOf<Spline>("SPLINE",
    subclassRow("AcDbSpline"),
    row(Code(71), &Spline::degree),
    row(Code(40), &Spline::knots),
    row(Code(41), &Spline::weights),
    row(Code(10), &Spline::poles),
    row(Code(11), &Spline::fitPoints));
}  // namespace spline

// From R13 on.
namespace ray
{
struct Ray
{
    AcGePoint3d start;
    AcGeVector3d direction;
};

inline constexpr auto rows = rowsOf(row(Code(10), &Ray::start), row(Code(11), &Ray::direction));
inline constexpr auto table = tableOf<Ray>("RAY",
    subclassRow("AcDbRay"),
    rows);
inline constexpr auto xline = tableOf<Ray>("XLINE",
    subclassRow("AcDbXline"),
    rows);
}  // namespace ray

// From R13 on.
namespace leader
{
struct Leader
{
    std::vector<AcGePoint3d> vertices;
};

inline constexpr auto table = tableOf<Leader>("LEADER",
    subclassRow("AcDbLeader"),
    row(Code(10), &Leader::vertices));
}  // namespace leader

// From R13 on.
namespace multiline
{
enum Flag
{
    closedFlag = 2
};

struct Multiline
{
    int flags = 0;
};

inline constexpr auto table = tableOf<Multiline>("MLINE",
    subclassRow("AcDbMline"),
    row(Code(71), &Multiline::flags));

// Each vertex is followed by an element for each line of the multiline.
struct Vertex
{
    AcGePoint3d point;
    AcGeVector3d direction;
    std::optional<AcGeVector3d> miter;
};

inline constexpr auto vertex = sequenceOf<Vertex>(
    row(Code(11), &Vertex::point),
    row(Code(12), &Vertex::direction),
    row(Code(13), &Vertex::miter));

// An element has more parameters, which say where the line is broken.
struct Element
{
    int parameters = 0;
    std::optional<double> distance;  // along the miter
};

inline constexpr auto element = sequenceOf<Element>(
    row(Code(74), &Element::parameters),
    row(Code(41), &Element::distance));
}  // namespace multiline

// From R14 on.
namespace lightpolyline
{
struct LightPolyline
{
    int flags = 0;  // those of polylines
    double width = 0;
    double elevation = 0;
    AcGeVector3d normal{0, 0, 1};
};

inline constexpr auto table = tableOf<LightPolyline>("LWPOLYLINE",
    subclassRow("AcDbPolyline"),
    row(entity::flags, &LightPolyline::flags),
    row(Code(43), &LightPolyline::width, When::unlessUsual),
    row(Code(38), &LightPolyline::elevation, When::unlessUsual),
    row(entity::normal, &LightPolyline::normal, When::unlessUsual));

struct Vertex
{
    PlanePoint point;
    std::optional<double> startWidth;  // absent: the polyline's width
    std::optional<double> endWidth;
    double bulge = 0;
};

inline constexpr auto vertex = partOf<Vertex>(
    row(Code(10), &Vertex::point),
    row(Code(40), &Vertex::startWidth),
    row(Code(41), &Vertex::endWidth),
    row(Code(42), &Vertex::bulge, When::unlessUsual));
}  // namespace lightpolyline
}  // namespace host::dxf::schema
// clang-format on
