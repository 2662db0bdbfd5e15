// Questions to the user, system variables and LISP functions.
//
// Points are [ucs], lengths are in drawing units. A call that says nothing else returns RTNORM, or
// RTERROR when it could not do its work.
//
// Every prompt returns RTCAN for Esc and at the end of the input, and RTERROR when there is nobody
// to ask. It leaves its result
// as it was unless it returns RTNORM. An answer that it refuses is complained about on the command
// line, and the prompt comes again. A prompt under a dialog that has not stepped aside
// (CAcUiDialog::BeginEditorCommand) ends the run.
#pragma once

#include "adscodes.h"
#include "adsdef.h"
#include "windows.h"

// Sets the options (bits of RSG_...) and keywords of the next prompt. That prompt drops them
// whatever it returns, so a loop calls this before each prompt. kwl holds keywords with blanks
// between them and may be null; the capitals of a keyword are the least that must be typed. The
// text is copied. RTERROR when no command line stands.
int acedInitGet(int val, const ACHAR* kwl);

// Asks for a point. pt is the base that "@" coordinates count from, or null for the last point;
// prompt may be null. Two coordinates take ELEVATION for their Z.
// RTNORM with result; RTKWORD for a keyword, and under RSG_OTHER for any other text (acedGetInput
// tells which); RTNONE for Enter.
int acedGetPoint(const ads_point pt, const ACHAR* prompt, ads_point result);

// Asks for the corner opposite to pt, with the same results. The Z of result is always ELEVATION,
// also when another one was typed. RTERROR for a null pt.
int acedGetCorner(const ads_point pt, const ACHAR* prompt, ads_point result);

// Asks for a distance: a number, or two points, of which pt is the first when it is given. Between
// points the distance is that in space, under RSG_2D that in the XY plane. A number may be zero or
// negative unless RSG_NOZERO or RSG_NONEG forbids it. The results are those of acedGetPoint.
int acedGetDist(const ads_point pt, const ACHAR* prompt, ads_real* result);

// Asks for a keyword. RTNORM with the keyword in result, spelled as in the list; under RSG_OTHER
// any other text is RTKWORD, and result holds it as well; RTNONE for Enter. RTERROR for a null
// result, or when neither keywords nor RSG_OTHER were set. result needs room for 133 characters; a
// longer text is cut.
int acedGetKword(const ACHAR* prompt, ACHAR* result);

// Copies what the last prompt took as keyword or as arbitrary text. It asks nothing and leaves the
// options of the next prompt alone. str needs room for 133 characters; a longer text is cut.
int acedGetInput(ACHAR* str);

// Reads a system variable; the letter case of sym does not count. Sets result to one value with a
// null rbnext. Whole numbers come as RTSHORT, or as RTLONG when they do not fit; points as
// RT3DPOINT; angles in RTREAL [rad]. The caller owns a text (RTSTR) and frees rstring with
// acutDelString. RTERROR and the variable ERRNO set for an unknown name, a null argument or without
// an open drawing.
int acedGetVar(const ACHAR* sym, struct resbuf* result);

// Sets a system variable; the letter case of sym does not count. The value that acedGetVar gave may
// be set again as it is. A text is copied. The new value counts at once.
// RTERROR and the variable ERRNO set for an unknown or read-only variable, another type, a value
// out of range or the name of a record that the drawing does not have.
int acedSetVar(const ACHAR* sym, const struct resbuf* val);

// Shows a warning that the user has to see [prints]; over a dialog on the screen it is a box.
// RTERROR for a null text or when no command line stands.
int acedAlert(const ACHAR* str);

// LISP functions of the calling module. They may be called only while the host is in one of the
// module's entry points; RTERROR otherwise. The host forgets them when the module is unloaded.
//
// Defines or removes a function. funcno is what acedGetFunCode gives while it runs.
int acedDefun(const ACHAR* sname, short funcno);
int acedUndef(const ACHAR* sname, short funcno);
// Has the function fcode, defined before, call fhdl instead of sending kInvkSubrMsg.
int acedRegFunc(int (*fhdl)(void), int fcode);
// Number of the function that is running; RTERROR while none is.
int acedGetFunCode(void);

// Converts pt from one coordinate system to another; pt is a displacement when disp is not 0. from
// and to hold RTSHORT: 0 for the WCS, 1 for the current UCS, 2 for the display. result may be pt.
// RTERROR for a null pt, another code or type, or without an open drawing.
int acedTrans(const ads_point pt, const struct resbuf* from, const struct resbuf* to, int disp,
              ads_point result);

// The host's main window [borrowed], owner for message boxes and dialogs.
HWND adsw_acadMainWnd();
