// Array of whole numbers.
#pragma once

#include "acarray.h"

typedef AcArray<int> AcGeIntArray;
