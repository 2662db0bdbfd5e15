// Tests where points lie.
//
// The tolerances are the values of the host's AcGeContext::gTol at the time of the call. At survey
// coordinates the caller raises equalPoint to the rounding of the coordinates (output/tolerance.h).
// All points of a call are in the same system, in drawing units.
#pragma once

#include <map>

#include "hostapi/host.h"

// Tells where P lies relative to the outline Q0-Q1-Q2-Q3. The corners are in order, clockwise or
// counter-clockwise.
// Returns 1 inside, 0 on an edge, -1 outside and 2 at a corner. The result is also -1 when the
// distances cannot be measured.
//
// A point on the outline does not count as inside, because a piece that only touches the frame is
// not drawn.
int pointInQuad(const AcGePoint3d& P, const AcGePoint3d& Q0, const AcGePoint3d& Q1,
                const AcGePoint3d& Q2, const AcGePoint3d& Q3);

// Does the same as pointInQuad for an outline that is given by the points of its entity. Returns
// -99 for fewer than four points.
//
// Only the first four points count: they are the corners of the outline. The command draws only
// quadrilaterals. A compatibility rule covers longer outlines: a grid drawn again must match the
// filed sheet, and filed grids are cut this way.
int pointInOutlinePoints(const AcGePoint3d& P, const AcGePoint3dArray& points);

// Tells where P lies relative to a closed curve that is open for read.
// Returns 1 inside, 0 on the curve and -1 outside. For a curve other than a 2D polyline the result
// is 0 on the curve and -99 elsewhere. The area is that of areaWithin, which serves many tests.
int pointInCurve(const AcGePoint3d& P, const AcDbCurve& curve, const AcDbMPolygon& area);

// Sets area, which is new, to the area within a closed curve that is open for read. It stays empty
// for null and for a curve other than a 2D polyline.
void areaWithin(const AcDbCurve* curve, AcDbMPolygon& area);

// The parts of a line along an axis whose points certainly lie inside or outside an outline. The
// bounds are coordinates along the line. Points that lie between an outer and an inner bound are
// left to the tests above, because near the outline tolerances and angles decide.
struct LineSpan
{
    int axis;  // 0 for X, 1 for Y
    double outerLow;
    double innerLow;  // above innerHigh when no point is certainly inside
    double innerHigh;
    double outerHigh;

    // Returns where a point of the line lies: 1 inside, -1 outside and 0 where a test has to
    // decide.
    int locate(const AcGePoint3d& P) const
    {
        const double at = P[axis];
        return at > innerLow && at < innerHigh ? 1 : at < outerLow || at > outerHigh ? -1 : 0;
    }
};

// Returns the span of the line through P along an axis. The coordinates of P across the axis are
// measurable (output/tolerance.h).
//
// outline  The first four points are the corners in order, clockwise or counter-clockwise. If they
//          are not a rectangle at the z of P, the span decides nothing.
//
// Between the outer and the inner bounds lies a guard band along the edges. On either side it is
// four times as wide as the largest current tolerance of the point tests, so rounding cannot reach
// across it. Outside it is at least 2.5e-7 of the outline's size wide. Seen from there, the angles
// between the corners differ from the full turn by 2e-6, and the angle-sum test notices 1e-6. The
// width is measured across the edge: where a line hardly slopes towards the edge, its way through
// the band and the rounding of its bounds grow alike.
LineSpan lineSpan(const AcGePoint3dArray& outline, const AcGePoint3d& P, int axis);

// Points in the order of one coordinate, so that a search takes as long for many as for few.
class KnownPoints
{
public:
    // The direction is the one along which the points lie apart. It makes searches quick and does
    // not change their results.
    explicit KnownPoints(const AcGeVector3d& direction);

    void add(const AcGePoint3d& P);

    // Returns whether one of the points lies closer to P than 1e-6 drawing units. At survey
    // coordinates the distance is the rounding of the coordinates of P if that is coarser.
    bool containsPoint(const AcGePoint3d& P) const;

private:
    int m_axis;
    std::multimap<double, AcGePoint3d> m_points;  // by their coordinate along m_axis
};
