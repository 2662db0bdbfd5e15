// Result codes, value types and prompt options of the editor's calls.
#pragma once

#define RTNONE 5000
#define RTREAL 5001
#define RTPOINT 5002
#define RTSHORT 5003
#define RTANG 5004
#define RTSTR 5005
#define RT3DPOINT 5009
#define RTLONG 5010

#define RTNORM 5100
#define RTERROR (-5001)
#define RTCAN (-5002)
#define RTREJ (-5003)
#define RTFAIL (-5004)
#define RTKWORD (-5005)

// Options that acedInitGet gives to the next prompt.
#define RSG_NONULL 1
#define RSG_NOZERO 2
#define RSG_NONEG 4
#define RSG_NOLIM 8
#define RSG_DASH 32
#define RSG_2D 64
#define RSG_OTHER 128
