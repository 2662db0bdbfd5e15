// Questions to the user, system variables and LISP functions.
//
// Points are [ucs], lengths are in drawing units. A call returns RTNORM when it did its work and
// RTERROR when it could not, unless its comment says otherwise.
//
// Every prompt returns RTCAN for Esc and at the end of the input, and RTERROR when no user can be
// asked. A prompt changes its result only when it returns RTNORM, unless its comment says
// otherwise. It complains about a refused answer on the command line and asks again. A prompt under
// a dialog that has not stepped aside (CAcUiDialog::BeginEditorCommand) ends the run.
#pragma once

#include "adscodes.h"
#include "adsdef.h"
#include "windows.h"

// Sets the options (bits of RSG_...) and the keywords of the next prompt. That prompt drops them
// whatever it returns, so a loop calls this function before each prompt. kwl holds keywords
// separated by blanks and may be null; the capitals of a keyword are the shortest text that the
// user must type. The text is copied. Returns RTERROR when no command line exists.
int acedInitGet(int val, const ACHAR* kwl);

// Asks for a point. pt is the base of "@" coordinates; null selects the last point. prompt may be
// null. Two coordinates get ELEVATION for their Z. Returns RTNORM and the point in result; RTKWORD
// for a keyword and, under RSG_OTHER, for any other text (acedGetInput returns it); RTNONE for
// Enter.
int acedGetPoint(const ads_point pt, const ACHAR* prompt, ads_point result);

// Asks for the corner opposite pt, with the same results. The Z of result is always ELEVATION, even
// when the user typed another one. Returns RTERROR for a null pt.
int acedGetCorner(const ads_point pt, const ACHAR* prompt, ads_point result);

// Asks for a distance: a number, or two points, the first of which is pt when it is not null. The
// distance between points is measured in space, and under RSG_2D in the XY plane. A number may be
// zero or negative unless RSG_NOZERO or RSG_NONEG forbids it. The results are those of
// acedGetPoint.
int acedGetDist(const ads_point pt, const ACHAR* prompt, ads_real* result);

// Asks for a keyword. Returns RTNORM and the keyword in result, spelled as in the list. Under
// RSG_OTHER it returns RTKWORD for any other text and copies that to result, too. It returns RTNONE
// for Enter, and RTERROR for a null result or when neither keywords nor RSG_OTHER were set. result
// needs room for 133 characters; a longer text is cut.
int acedGetKword(const ACHAR* prompt, ACHAR* result);

// Copies the keyword or other text that the last prompt accepted. The call asks no question and
// keeps the options of the next prompt. str needs room for 133 characters; a longer text is cut.
// Returns RTERROR for a null str.
int acedGetInput(ACHAR* str);

// Reads a system variable; the letter case of sym does not matter. Sets result to a single value
// with a null rbnext. A whole number comes as RTSHORT, or as RTLONG when it does not fit, a point
// as RT3DPOINT, and an angle in RTREAL [rad]. The caller owns a text (RTSTR) and frees rstring with
// acutDelString. Returns RTERROR and sets the variable ERRNO for an unknown name, for a null
// argument, or without an open drawing.
int acedGetVar(const ACHAR* sym, struct resbuf* result);

// Sets a system variable; the letter case of sym does not matter. The value that acedGetVar
// returned may be set again unchanged. A text is copied. The new value takes effect at once.
// Returns RTERROR and sets the variable ERRNO for a null argument, an unknown or read-only
// variable, a value of another type or out of range, or the name of a record that the drawing does
// not have.
int acedSetVar(const ACHAR* sym, const struct resbuf* val);

// Shows a warning that the user has to see [prints]. While a dialog is on the screen, the warning
// is a message box. Returns RTERROR for a null text or when no command line exists.
int acedAlert(const ACHAR* str);

// The LISP functions of the calling module. These calls are allowed only while the host is in one
// of the module's entry points and return RTERROR otherwise. The host forgets the functions when
// the module is unloaded.
//
// Define or remove a function. acedGetFunCode returns funcno while the function runs.
int acedDefun(const ACHAR* sname, short funcno);
int acedUndef(const ACHAR* sname, short funcno);
// Makes the function fcode, which acedDefun defined, call fhdl instead of sending kInvkSubrMsg.
int acedRegFunc(int (*fhdl)(void), int fcode);
// Returns the number of the function that is running, or RTERROR while none is running.
int acedGetFunCode(void);

// Converts pt from one coordinate system to another; pt is a displacement when disp is not 0. from
// and to hold RTSHORT: 0 for the WCS, 1 for the current UCS, 2 for the display. result may be pt.
// Returns RTERROR for a null pt, for another code or type, or without an open drawing.
int acedTrans(const ads_point pt, const struct resbuf* from, const struct resbuf* to, int disp,
              ads_point result);

// Returns the host's main window [borrowed], the owner of message boxes and dialogs.
HWND adsw_acadMainWnd();
