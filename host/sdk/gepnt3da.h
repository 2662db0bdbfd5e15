// The array of points.
#pragma once

#include "acarray.h"
#include "gepnt3d.h"

// An array of points; see acarray.h. Each call that fills one names the coordinate system.
typedef AcArray<AcGePoint3d> AcGePoint3dArray;
