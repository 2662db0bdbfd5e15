// Settings of the geometry library that hold for the whole process.
#pragma once

#include "getol.h"

struct AcGeContext
{
    // Default of every tolerance argument. Anyone may change it, so who does puts it back.
    static AcGeTol gTol;
};
