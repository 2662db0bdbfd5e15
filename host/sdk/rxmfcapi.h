// Progress meter in the status bar.
#pragma once

#include "adesk.h"

// 0 on success, -1 otherwise. The meter stands until acedRestoreStatusBar.
int acedSetStatusBarProgressMeter(const ACHAR* pszLabel, int nMinPos, int nMaxPos);

// A position, or a step when negative. -1 when no meter stands.
int acedSetStatusBarProgressMeterPos(int nPos);

void acedRestoreStatusBar();
