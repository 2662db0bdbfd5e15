// Tests where a point lies.
//
// The tolerances are the values of the host's AcGeContext::gTol at the time of the call. At survey
// coordinates the caller raises equalPoint to the rounding of the coordinates (output/tolerance.h).
#pragma once

#include <map>

#include "hostapi/host.h"

// Returns the largest of the tolerances that the tests below use, in drawing units.
double largestPointTolerance();

// Tells where P lies relative to the outline Q0-Q1-Q2-Q3.
//
// All points are in the same system, in drawing units. The corners are in order, clockwise or
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

// The area within a closed curve. It prepares the curve once, for many tests of points.
class CurveArea
{
public:
    // The curve is [borrowed] and open for read while this object lives.
    explicit CurveArea(const AcDbCurve& curve);

    // Returns what pointInCurve returns for the curve.
    int locate(const AcGePoint3d& P) const;

private:
    CurveArea(const CurveArea&);
    CurveArea& operator=(const CurveArea&);

    const AcDbCurve& m_curve;
    bool m_isPolyline;
    AcDbMPolygon m_polygon;
};

// Tells where P lies relative to a closed curve that is open for read. Both are in the same system,
// in drawing units.
// Returns 1 inside, 0 on the curve and -1 outside. For a curve other than a 2D polyline the result
// is 0 on the curve and -99 elsewhere.
int pointInCurve(const AcGePoint3d& P, const AcDbCurve& curve);

// Points that are searched for near ones. They are kept in the order of one coordinate, so a search
// takes as long for many points as for few.
class KnownPoints
{
public:
    // The direction is the one along which the points lie apart, in their system. It makes the
    // search quick and does not change its result.
    explicit KnownPoints(const AcGeVector3d& direction);

    void add(const AcGePoint3d& P);

    // Returns whether one of the points lies closer to P than 1e-6 drawing units. At survey
    // coordinates the distance is the rounding of the coordinates of P if that is coarser.
    bool contain(const AcGePoint3d& P) const;

private:
    const int m_axis;
    std::multimap<double, AcGePoint3d> m_points;  // by their coordinate along m_axis
};
