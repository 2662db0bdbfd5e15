// The settings of the geometry library, which hold for the whole process.
#pragma once

#include "getol.h"

// The settings that every comparison uses unless its caller passes others.
struct AcGeContext
{
    // The default of every tolerance argument. A change affects the host and every module, so a
    // caller that changes it restores the former value.
    static AcGeTol gTol;
};
