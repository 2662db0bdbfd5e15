// The array of object ids.
#pragma once

#include "acarray.h"
#include "dbid.h"

// An array of ids; see acarray.h.
typedef AcArray<AcDbObjectId> AcDbObjectIdArray;
