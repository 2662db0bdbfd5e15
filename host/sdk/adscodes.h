// Result codes, value types and prompt options of the editor's calls.
#pragma once

// Value types: resbuf::restype is one of them and says which member of resval holds the value.
// RTNONE is also the result of a prompt that the user answered with Enter.
#define RTNONE 5000     // no value
#define RTREAL 5001     // rreal
#define RTPOINT 5002    // rpoint, of which X and Y count
#define RTSHORT 5003    // rint
#define RTANG 5004      // rreal [rad]
#define RTSTR 5005      // rstring
#define RT3DPOINT 5009  // rpoint
#define RTLONG 5010     // rlong

// Results. Everything that fails here gives RTERROR; this host never gives RTREJ or RTFAIL, which
// callers may name.
#define RTNORM 5100      // the call did its work
#define RTERROR (-5001)  // the call could not do its work
#define RTCAN (-5002)    // the user pressed Esc
#define RTREJ (-5003)    // the host refused the request
#define RTFAIL (-5004)   // the connection to the host failed
#define RTKWORD (-5005)  // the user typed a keyword or, under RSG_OTHER, any other text

// Options that acedInitGet gives to the next prompt; they are bits.
#define RSG_NONULL 1   // Enter is refused, and the prompt comes again
#define RSG_NOZERO 2   // a distance of zero is refused
#define RSG_NONEG 4    // a negative distance is refused
#define RSG_NOLIM 8    // a point beyond the drawing's limits is taken; here every point is
#define RSG_DASH 32    // the rubber band is dashed; this host draws none
#define RSG_2D 64      // a distance ignores the Z of its points
#define RSG_OTHER 128  // text that nothing else explains is an answer: RTKWORD
