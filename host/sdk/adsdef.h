// Plain data that the editor's calls exchange.
#pragma once

#include "adesk.h"

typedef double ads_real;
typedef ads_real ads_point[3];
typedef std::intptr_t ads_name[2];

// Indices into an ads_point.
enum
{
    X = 0,
    Y = 1,
    Z = 2
};

union ads_u_val
{
    ads_real rreal;
    ads_real rpoint[3];
    short rint;
    ACHAR* rstring;
    ads_name rlname;
    Adesk::Int32 rlong;
};

// One typed value; restype says which member of resval holds it.
struct resbuf
{
    struct resbuf* rbnext;
    short restype;
    union ads_u_val resval;
};
