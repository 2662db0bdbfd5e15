// Points that lie so far from an outline that one look tells where.
#pragma once

#include "hostapi/host.h"

// A convex quadrilateral in a plane of one z. The point tests take their time over points near the
// edges, where tolerances and angles decide; nearly all points of a grid are not near.
class ClearArea
{
public:
    // All points in one system, corners in order, either turn. The tolerance, in drawing units, is
    // the largest of the test that is to be spared.
    ClearArea(const AcGePoint3d& Q0, const AcGePoint3d& Q1, const AcGePoint3d& Q2,
              const AcGePoint3d& Q3, double tolerance);

    // 1 well inside, -1 well outside, 0 for anything that the test itself has to decide: a point
    // near an edge or off the plane, any point when the corners make no convex outline.
    //
    // A point counts as outside only beyond a millionth of the outline's size. Seen from there the
    // corners lack 8e-6 of the full turn, which pointInQuad notices from 1e-6 on.
    int locate(const AcGePoint3d& P) const;

private:
    struct Edge
    {
        double x, y;              // where it begins
        double acrossX, acrossY;  // unit vector, to the inside
    };

    bool setEdges(const AcGePoint3d* const (&corners)[4]);

    Edge m_edges[4];
    double m_z;
    double m_tolerance;
    double m_largest;  // of the corners' coordinates
    double m_millionth;
    bool m_isConvex;
};
