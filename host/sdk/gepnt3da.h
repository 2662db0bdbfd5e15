// Array of points.
#pragma once

#include "acarray.h"
#include "gepnt3d.h"

// An array of points; see acarray.h. Each call that fills one says in which system.
typedef AcArray<AcGePoint3d> AcGePoint3dArray;
