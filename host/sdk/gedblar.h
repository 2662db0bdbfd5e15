// Array of numbers.
#pragma once

#include "acarray.h"

// An array of numbers; see acarray.h.
typedef AcArray<double> AcGeDoubleArray;
