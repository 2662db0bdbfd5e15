// The array of floating-point numbers.
#pragma once

#include "acarray.h"

// An array of floating-point numbers; see acarray.h.
typedef AcArray<double> AcGeDoubleArray;
