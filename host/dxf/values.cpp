#include "host/dxf/values.h"

namespace host::dxf
{
namespace
{
template <class Point>
bool samePoint(const Point& a, const Point& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}
}  // namespace

bool same(const AcGePoint3d& a, const AcGePoint3d& b)
{
    return samePoint(a, b);
}

bool same(const AcGeVector3d& a, const AcGeVector3d& b)
{
    return samePoint(a, b);
}

bool same(const schema::PlanePoint& a, const schema::PlanePoint& b)
{
    return a.x == b.x && a.y == b.y;
}
}  // namespace host::dxf
