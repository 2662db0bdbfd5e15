// Where a point lies.
//
// Tolerances are the host's own (AcGeContext::gTol), as they stand at the call: at survey
// coordinates the caller raises equalPoint to their rounding (output/tolerance.h).
#pragma once

#include "hostapi/host.h"

// The largest of the tolerances that decide in the tests below, in drawing units.
double largestPointTolerance();

// Tells where P lies with respect to the outline Q0-Q1-Q2-Q3.
//
// All points in one system, drawing units, corners in order, either turn.
// Returns 1 inside, 0 on an edge, -1 outside, 2 at a corner; -1 too for what cannot be measured.
//
// On the outline is not inside: a piece that only touches the frame is not drawn.
int pointInQuad(const AcGePoint3d& P, const AcGePoint3d& Q0, const AcGePoint3d& Q1,
                const AcGePoint3d& Q2, const AcGePoint3d& Q3);

// The same for an outline given by the points of its entity; -99 for fewer than four.
//
// Only the first four count: an outline is the quadrilateral of its first corners. The command
// draws no other, and grids in longer outlines have always been cut so.
int pointInOutlinePoints(const AcGePoint3d& P, const AcGePoint3dArray& points);

// Area within a closed curve, for many questions about the same curve.
class CurveArea
{
public:
    explicit CurveArea(const AcDbCurve& curve);  // [borrowed], open for read while this lives

    // As pointInCurve.
    int locate(const AcGePoint3d& P) const;

private:
    CurveArea(const CurveArea&);
    CurveArea& operator=(const CurveArea&);

    const AcDbCurve& m_curve;
    bool m_isPolyline;
    AcDbMPolygon m_polygon;
};

// Tells where P lies with respect to a closed curve that is open for read, both in one system.
// Returns 1 inside, 0 on the curve, -1 outside, -99 off a curve that is no 2D polyline.
int pointInCurve(const AcGePoint3d& P, const AcDbCurve& curve);

// Whether a point of the list lies closer to P than 1e-6. A linear scan; lists are short.
bool containsPoint(const AcGePoint3dArray& list, const AcGePoint3d& P);
