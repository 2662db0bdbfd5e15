// Result codes, value types and prompt options of the editor's calls.
#pragma once

// The value types. resbuf::restype is one of them and tells which member of resval holds the value.
// RTNONE is also the result of a prompt that the user answered with Enter.
#define RTNONE 5000     // no value
#define RTREAL 5001     // rreal
#define RTPOINT 5002    // rpoint, only its X and Y
#define RTSHORT 5003    // rint
#define RTANG 5004      // rreal [rad]
#define RTSTR 5005      // rstring
#define RT3DPOINT 5009  // rpoint
#define RTLONG 5010     // rlong

// The results. A call that fails here returns RTERROR. This host never returns RTREJ or RTFAIL,
// which callers may name.
#define RTNORM 5100      // the call did its work
#define RTERROR (-5001)  // the call could not do its work
#define RTCAN (-5002)    // the user pressed Esc
#define RTREJ (-5003)    // the host refused the request
#define RTFAIL (-5004)   // the connection to the host failed
#define RTKWORD (-5005)  // the user typed a keyword or, under RSG_OTHER, any other text

// The options that acedInitGet sets for the next prompt; they are bits.
#define RSG_NONULL 1   // Enter is refused, and the prompt comes again
#define RSG_NOZERO 2   // a distance of zero is refused
#define RSG_NONEG 4    // a negative distance is refused
#define RSG_NOLIM 8    // a point outside the limits is accepted, as any point is here
#define RSG_DASH 32    // the rubber band is dashed; this host does not draw one
#define RSG_2D 64      // a distance ignores the Z of its points
#define RSG_OTHER 128  // any other text is an answer, too: RTKWORD
