// Progress meter in the status bar.
//
// Order of calls: start the meter, move it, restore the status bar. A command that ends while its
// meter stands stops the run.
#pragma once

#include "adesk.h"

// Starts a meter with that label and range; the text is copied and may be null. The range may be
// empty. A meter that stands already is replaced.
// 0, or -1 when nMinPos is above nMaxPos or no command line stands.
int acedSetStatusBarProgressMeter(const ACHAR* pszLabel, int nMinPos, int nMaxPos);

// Moves the meter to nPos, or by -nPos when nPos is negative. The range is not checked.
// 0, or -1 when no meter stands.
int acedSetStatusBarProgressMeterPos(int nPos);

// Takes the meter away. Without a meter the call does nothing.
void acedRestoreStatusBar();
