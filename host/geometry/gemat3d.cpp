#include "gemat3d.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "geplane.h"
#include "host/geometry/ocs.h"

const AcGeMatrix3d AcGeMatrix3d::kIdentity;

namespace
{
// A transpose has the error of the axes, while the general method has a few roundings. Axes
// therefore count as orthonormal only within the roundings of their construction. A wider limit,
// such as 1e-12, would move a point at 1e7 by 1e-5.
const double orthonormalLimit = 1e-15;

struct Axes
{
    AcGeVector3d x, y, z;
};

Axes axesOf(const AcGeMatrix3d& m)
{
    AcGePoint3d origin;
    Axes axes;
    m.getCoordSystem(origin, axes.x, axes.y, axes.z);
    return axes;
}

bool isOrthonormal(const Axes& axes)
{
    const double deviations[] = {axes.x.lengthSqrd() - 1,   axes.y.lengthSqrd() - 1,
                                 axes.z.lengthSqrd() - 1,   axes.x.dotProduct(axes.y),
                                 axes.y.dotProduct(axes.z), axes.z.dotProduct(axes.x)};
    return std::ranges::all_of(deviations,
                               [](double d) { return std::abs(d) <= orthonormalLimit; });
}

// Returns the vectors whose dot products with a vector are its components along the axes.
Axes inverseRows(const Axes& axes)
{
    if (isOrthonormal(axes))
    {
        return axes;
    }
    const AcGeVector3d yz = axes.y.crossProduct(axes.z);
    const double volume = axes.x.dotProduct(yz);
    return {yz / volume, axes.z.crossProduct(axes.x) / volume,
            axes.x.crossProduct(axes.y) / volume};
}

// Uses the formula of Rodrigues. The part along the axis is removed first, so that a point on the
// axis stays exactly where it is. A sum that starts from zero has no negative zeros.
AcGeVector3d rotated(const AcGeVector3d& v, double angle, const AcGeVector3d& unitAxis)
{
    const AcGeVector3d along = unitAxis * unitAxis.dotProduct(v);
    return AcGeVector3d() + along + (v - along) * std::cos(angle) +
           unitAxis.crossProduct(v) * std::sin(angle);
}
}  // namespace

AcGeMatrix3d AcGeMatrix3d::rotation(double angle, const AcGeVector3d& axis,
                                    const AcGePoint3d& center)
{
    if (angle == 0 || axis.isZeroLength())
    {
        return kIdentity;
    }
    const AcGeVector3d unit = axis.normal();
    AcGeMatrix3d m;
    m.setCoordSystem(AcGePoint3d(), rotated(AcGeVector3d::kXAxis, angle, unit),
                     rotated(AcGeVector3d::kYAxis, angle, unit),
                     rotated(AcGeVector3d::kZAxis, angle, unit));
    return m.setTranslation(center - m * center);
}

AcGeMatrix3d AcGeMatrix3d::translation(const AcGeVector3d& vector)
{
    return AcGeMatrix3d().setTranslation(vector);
}

AcGeMatrix3d AcGeMatrix3d::scaling(double factor, const AcGePoint3d& center)
{
    AcGeMatrix3d m;
    m.setCoordSystem(AcGePoint3d(), AcGeVector3d(factor, 0, 0), AcGeVector3d(0, factor, 0),
                     AcGeVector3d(0, 0, factor));
    return m.setTranslation(center - m * center);
}

AcGeMatrix3d AcGeMatrix3d::planeToWorld(const AcGeVector3d& normal)
{
    return host::Ocs(normal).matrix();
}

AcGeMatrix3d AcGeMatrix3d::worldToPlane(const AcGeVector3d& normal)
{
    return planeToWorld(normal).inverse();
}

AcGeMatrix3d AcGeMatrix3d::planeToWorld(const AcGePlane& plane)
{
    AcGePoint3d origin;
    AcGeVector3d xAxis, yAxis;
    plane.getCoordSystem(origin, xAxis, yAxis);
    return AcGeMatrix3d().setCoordSystem(origin, xAxis, yAxis, plane.normal());
}

AcGeMatrix3d AcGeMatrix3d::worldToPlane(const AcGePlane& plane)
{
    return planeToWorld(plane).inverse();
}

AcGeMatrix3d AcGeMatrix3d::operator*(const AcGeMatrix3d& right) const
{
    AcGeMatrix3d product;
    for (int i = 0; i < 4; ++i)
    {
        for (int j = 0; j < 4; ++j)
        {
            double sum = 0;
            for (int k = 0; k < 4; ++k)
            {
                sum += entry[i][k] * right.entry[k][j];
            }
            product.entry[i][j] = sum;
        }
    }
    return product;
}

AcGeMatrix3d& AcGeMatrix3d::setTranslation(const AcGeVector3d& vector)
{
    entry[0][3] = vector.x;
    entry[1][3] = vector.y;
    entry[2][3] = vector.z;
    return *this;
}

AcGeMatrix3d& AcGeMatrix3d::setCoordSystem(const AcGePoint3d& origin, const AcGeVector3d& xAxis,
                                           const AcGeVector3d& yAxis, const AcGeVector3d& zAxis)
{
    const double rows[4][4] = {{xAxis.x, yAxis.x, zAxis.x, origin.x},
                               {xAxis.y, yAxis.y, zAxis.y, origin.y},
                               {xAxis.z, yAxis.z, zAxis.z, origin.z},
                               {0, 0, 0, 1}};
    std::copy_n(&rows[0][0], 16, &entry[0][0]);
    return *this;
}

void AcGeMatrix3d::getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis,
                                  AcGeVector3d& zAxis) const
{
    xAxis.set(entry[0][0], entry[1][0], entry[2][0]);
    yAxis.set(entry[0][1], entry[1][1], entry[2][1]);
    zAxis.set(entry[0][2], entry[1][2], entry[2][2]);
    origin.set(entry[0][3], entry[1][3], entry[2][3]);
}

AcGeMatrix3d AcGeMatrix3d::inverse() const
{
    const Axes rows = inverseRows(axesOf(*this));
    AcGeMatrix3d result;
    result.setCoordSystem(AcGePoint3d(), rows.x, rows.y, rows.z).transposeBy();
    return result.setTranslation(AcGeVector3d() - result * translation());
}

AcGeMatrix3d& AcGeMatrix3d::transposeBy()
{
    for (int i = 0; i < 4; ++i)
    {
        for (int j = 0; j < i; ++j)
        {
            std::swap(entry[i][j], entry[j][i]);
        }
    }
    return *this;
}

double AcGeMatrix3d::det() const
{
    const Axes axes = axesOf(*this);
    return axes.x.dotProduct(axes.y.crossProduct(axes.z));
}

bool AcGeMatrix3d::isUniScaledOrtho(const AcGeTol& tol) const
{
    const Axes axes = axesOf(*this);
    const double size = axes.x.length();
    const double allowed = tol.equalVector() * size;
    return size > 0 && std::abs(axes.y.length() - size) <= allowed &&
           std::abs(axes.z.length() - size) <= allowed &&
           std::abs(axes.x.dotProduct(axes.y)) <= allowed * size &&
           std::abs(axes.y.dotProduct(axes.z)) <= allowed * size &&
           std::abs(axes.z.dotProduct(axes.x)) <= allowed * size;
}
