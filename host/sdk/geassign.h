// Views of points and vectors as the plain arrays of the editor's functions, and of such arrays as
// points and vectors.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

static_assert(sizeof(AcGePoint3d) == 3 * sizeof(double), "a point is laid out as its coordinates");
static_assert(sizeof(AcGeVector3d) == 3 * sizeof(double), "so is a vector");

// Return the three coordinates of the argument [borrowed]. They are the argument itself and not a
// copy, so a change to one changes the other.
inline double* asDblArray(AcGePoint3d& p)
{
    return reinterpret_cast<double*>(&p);
}
inline const double* asDblArray(const AcGePoint3d& p)
{
    return reinterpret_cast<const double*>(&p);
}
inline double* asDblArray(AcGeVector3d& v)
{
    return reinterpret_cast<double*>(&v);
}
inline const double* asDblArray(const AcGeVector3d& v)
{
    return reinterpret_cast<const double*>(&v);
}

// Return three doubles as a point or a vector [borrowed]. It is the argument itself and not a copy.
inline AcGePoint3d& asPnt3d(double* p)
{
    return *reinterpret_cast<AcGePoint3d*>(p);
}
inline const AcGePoint3d& asPnt3d(const double* p)
{
    return *reinterpret_cast<const AcGePoint3d*>(p);
}
inline AcGeVector3d& asVec3d(double* v)
{
    return *reinterpret_cast<AcGeVector3d*>(v);
}
inline const AcGeVector3d& asVec3d(const double* v)
{
    return *reinterpret_cast<const AcGeVector3d*>(v);
}
