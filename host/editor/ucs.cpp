#include "host/editor/ucs.h"

#include <algorithm>
#include <cmath>

#include "host/database/drawing.h"
#include "host/editor/view.h"

namespace host
{
AcGeVector3d axisOf(const AcGeMatrix3d& frame, int axis)
{
    return {frame.entry[0][axis], frame.entry[1][axis], frame.entry[2][axis]};
}

AcGePoint3d originOf(const AcGeMatrix3d& frame)
{
    return {frame.entry[0][3], frame.entry[1][3], frame.entry[2][3]};
}

AcGeVector3d ucsToWorld(const AcGeMatrix3d& ucs, const AcGeVector3d& vector)
{
    return ucs * vector;
}

AcGeVector3d worldToUcs(const AcGeMatrix3d& ucs, const AcGeVector3d& vector)
{
    return {axisOf(ucs, 0).dotProduct(vector), axisOf(ucs, 1).dotProduct(vector),
            axisOf(ucs, 2).dotProduct(vector)};
}

AcGePoint3d ucsToWorld(const AcGeMatrix3d& ucs, const AcGePoint3d& point)
{
    return ucs * point;
}

AcGePoint3d worldToUcs(const AcGeMatrix3d& ucs, const AcGePoint3d& point)
{
    return AcGePoint3d() + worldToUcs(ucs, point - originOf(ucs));
}

AcGeMatrix3d frameOf(const AcGePoint3d& origin, const AcGeVector3d& x, const AcGeVector3d& y,
                     const AcGeVector3d& z)
{
    AcGeMatrix3d frame;
    frame.setCoordSystem(origin, x, y, z);
    return frame;
}

bool isWorld(const AcGeMatrix3d& frame)
{
    const AcGeMatrix3d world;
    return std::equal(&frame.entry[0][0], &frame.entry[0][0] + 16, &world.entry[0][0],
                      [](double a, double b) { return std::fabs(a - b) < 1e-10; });
}

namespace
{
// Returns the largest error of a coordinate system whose axes should be unit vectors, perpendicular
// and right-handed.
double deviation(const AcGeMatrix3d& frame)
{
    const AcGeVector3d x = axisOf(frame, 0), y = axisOf(frame, 1), z = axisOf(frame, 2);
    const AcGeVector3d skew = x.crossProduct(y) - z;
    const double errors[] = {std::fabs(x.length() - 1),    std::fabs(y.length() - 1),
                             std::fabs(x.dotProduct(y)),   skew.length(),
                             std::fabs(frame.entry[3][0]), std::fabs(frame.entry[3][1]),
                             std::fabs(frame.entry[3][2]), std::fabs(frame.entry[3][3] - 1)};
    return *std::ranges::max_element(errors);
}

AcGeMatrix3d squared(const AcGeMatrix3d& frame)
{
    const AcGeVector3d x = axisOf(frame, 0) / axisOf(frame, 0).length();
    const AcGeVector3d across = x.crossProduct(axisOf(frame, 1));
    const AcGeVector3d z = across / across.length();
    return frameOf(originOf(frame), x, z.crossProduct(x), z);
}

bool isFinite(const AcGeMatrix3d& frame)
{
    return std::all_of(&frame.entry[0][0], &frame.entry[0][0] + 16,
                       [](double value) { return std::isfinite(value); });
}

void followUcs(DrawingState& state)
{
    if (state.ucsFollow != 0 && !state.paperSpace)
    {
        planView(state.view, state.ucs().toWorld);
    }
}
}  // namespace

bool setUcs(Document& document, const AcGeMatrix3d& frame)
{
    const double error = deviation(frame);
    if (!isFinite(frame) || error > 1e-6)
    {
        return false;
    }
    DrawingState& state = stateOf(*document.database());
    document.ucsHistory().push(state);
    // worldToUcs uses dot products with the axes. At survey coordinates a slight skew would move a
    // point by millimetres on the way to the UCS and back.
    state.ucs() = {error > 1e-14 ? squared(frame) : frame, L""};
    followUcs(state);
    return true;
}

bool restorePreviousUcs(Document& document)
{
    DrawingState& state = stateOf(*document.database());
    if (!document.ucsHistory().pop(state, state.ucs()))
    {
        return false;
    }
    followUcs(state);
    return true;
}
}  // namespace host
