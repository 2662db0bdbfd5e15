#include "gepnt3d.h"

#include "gemat3d.h"

const AcGePoint3d AcGePoint3d::kOrigin;

AcGePoint3d& AcGePoint3d::transformBy(const AcGeMatrix3d& matrix)
{
    return *this = matrix * *this;
}
