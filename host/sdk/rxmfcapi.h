// The progress meter in the status bar.
//
// Order of calls: start the meter, move it, restore the status bar. A command that ends while its
// meter is shown ends the run.
#pragma once

#include "adesk.h"

// Starts a meter with that label and range. The text is copied and may be null. The range may be
// empty. A meter that is shown already is replaced. Returns 0, or -1 when nMinPos is greater than
// nMaxPos or no command line exists.
int acedSetStatusBarProgressMeter(const ACHAR* pszLabel, int nMinPos, int nMaxPos);

// Moves the meter to nPos, or by -nPos when nPos is negative. The range is not checked. Returns 0,
// or -1 when no meter is shown.
int acedSetStatusBarProgressMeterPos(int nPos);

// Removes the meter. Without a meter the call does nothing.
void acedRestoreStatusBar();
