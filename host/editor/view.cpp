#include "host/editor/view.h"

#include <cmath>
#include <numbers>

#include "host/editor/ucs.h"

namespace host
{
double inFullTurn(double radians)
{
    const double turn = 2 * std::numbers::pi;
    const double rest = std::fmod(radians, turn);
    const double positive = rest < 0 ? rest + turn : rest;
    // A tiny negative angle plus a full turn rounds to the full turn, which is out of the range.
    return positive < turn ? positive + 0.0 : 0;
}

void turnView(View& view, const AcGeVector3d& direction, double twist)
{
    const AcGePoint3d centre =
        ucsToWorld(viewFrame(view), AcGePoint3d(view.centreX, view.centreY, 0));
    view.direction = direction;
    view.twist = inFullTurn(twist);
    const AcGePoint3d seen = worldToUcs(viewFrame(view), centre);
    view.centreX = seen.x;
    view.centreY = seen.y;
}

void planView(View& view, const AcGeMatrix3d& frame)
{
    const AcGeVector3d normal = axisOf(frame, 2);
    const AcGeVector3d x = worldToUcs(AcGeMatrix3d::planeToWorld(normal), axisOf(frame, 0));
    const double angle = std::atan2(x.y, x.x);
    turnView(view, normal, -angle);  // in the plane, the screen's X axis lies at minus the twist
}
}  // namespace host
