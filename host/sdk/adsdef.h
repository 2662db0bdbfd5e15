// The plain data that the editor's calls exchange.
#pragma once

#include "adesk.h"

// A number, a point of three coordinates, and the name of an entity.
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

// The value of a resbuf; restype tells which member holds it.
union ads_u_val
{
    ads_real rreal;      // RTREAL, RTANG [rad]
    ads_real rpoint[3];  // RTPOINT, RT3DPOINT
    short rint;          // RTSHORT
    ACHAR*
        rstring;  // RTSTR; the comment of the call that fills or reads the resbuf names the owner
    ads_name rlname;     // name of an entity; no call here fills it
    Adesk::Int32 rlong;  // RTLONG
};

// One typed value, or the first of a list. No call here frees a resbuf.
struct resbuf
{
    struct resbuf* rbnext;   // next value of the list; null at its end
    short restype;           // a value type of adscodes.h
    union ads_u_val resval;  // the value
};
