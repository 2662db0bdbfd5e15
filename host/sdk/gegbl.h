// Settings of the geometry library that hold for the whole process.
#pragma once

#include "getol.h"

// Settings that every comparison uses unless it is told otherwise.
struct AcGeContext
{
    // Default of every tolerance argument. A change holds for the host and every module, so whoever
    // changes it sets the former value again.
    static AcGeTol gTol;
};
