// Questions to the user, system variables and LISP functions.
//
// Points are in the current UCS, lengths in drawing units. Unless said otherwise a call gives
// RTNORM, or RTERROR when it could not do its work.
#pragma once

#include "adscodes.h"
#include "adsdef.h"
#include "windows.h"

// Options and keywords of the next prompt alone: whatever that prompt gives, they are dropped by
// it. kwl holds keywords with blanks between them, capitals being the least that must be typed.
int acedInitGet(int val, const ACHAR* kwl);

// pt: base point, or null. RTNORM with result filled; RTKWORD for a keyword, and under RSG_OTHER
// for any other text (acedGetInput tells which); RTNONE for Enter, result untouched; RTCAN for Esc.
int acedGetPoint(const ads_point pt, const ACHAR* prompt, ads_point result);

// Same, with the opposite corner pt needed. A typed Z is not taken: result has the elevation.
int acedGetCorner(const ads_point pt, const ACHAR* prompt, ads_point result);

// A number or two points, one when pt is given. In space, or under RSG_2D in the XY plane.
int acedGetDist(const ads_point pt, const ACHAR* prompt, ads_real* result);

// RTNORM with the keyword in result; under RSG_OTHER other text is RTKWORD and in result as well.
// result needs room for 133 characters.
int acedGetKword(const ACHAR* prompt, ACHAR* result);

// What the last prompt took as keyword or as arbitrary text. str needs room for 133 characters.
int acedGetInput(ACHAR* str);

// Letter case of sym does not count. A text is allocated for the caller: free it by acutDelString.
int acedGetVar(const ACHAR* sym, struct resbuf* result);

// RTERROR and the variable ERRNO set for an unknown or read-only variable or a value that does not
// fit.
int acedSetVar(const ACHAR* sym, const struct resbuf* val);

// Shows a warning that the user has to see.
int acedAlert(const ACHAR* str);

// LISP functions of the calling module. funcno is what acedGetFunCode gives when one is called.
int acedDefun(const ACHAR* sname, short funcno);
int acedUndef(const ACHAR* sname, short funcno);
int acedRegFunc(int (*fhdl)(void), int fcode);
int acedGetFunCode(void);

// Converts pt, or a displacement when disp is not 0, between coordinate systems. from and to hold
// RTSHORT 0 for the WCS, 1 for the current UCS, 2 for the display.
int acedTrans(const ads_point pt, const struct resbuf* from, const struct resbuf* to, int disp,
              ads_point result);

// Owner for message boxes and dialogs.
HWND adsw_acadMainWnd();
