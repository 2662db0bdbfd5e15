// The array of whole numbers.
#pragma once

#include "acarray.h"

// An array of whole numbers; see acarray.h.
typedef AcArray<int> AcGeIntArray;
