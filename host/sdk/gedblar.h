// Array of numbers.
#pragma once

#include "acarray.h"

typedef AcArray<double> AcGeDoubleArray;
