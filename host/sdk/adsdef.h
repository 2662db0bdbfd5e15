// Plain data that the editor's calls exchange.
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

// Value of a resbuf; its restype says which member holds it.
union ads_u_val
{
    ads_real rreal;      // RTREAL, RTANG [rad]
    ads_real rpoint[3];  // RTPOINT, RT3DPOINT
    short rint;          // RTSHORT
    ACHAR* rstring;      // RTSTR; the call that fills or reads the resbuf says who frees it
    ads_name rlname;     // name of an entity; no call here fills it
    Adesk::Int32 rlong;  // RTLONG
};

// One typed value, or a list of them. No call here frees a resbuf.
struct resbuf
{
    struct resbuf* rbnext;   // next value of a list; null at its end
    short restype;           // a value type of adscodes.h
    union ads_u_val resval;  // the value
};
