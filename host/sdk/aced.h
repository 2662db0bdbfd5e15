// The calls that read and change the current UCS.
#pragma once

#include "accmd.h"
#include "acadstrc.h"
#include "acedads.h"
#include "gemat3d.h"

// Sets mat to the matrix that maps [ucs] to [wcs]: its columns are the axes and the origin. Returns
// eNoDatabase without an open drawing; mat is unchanged then.
Acad::ErrorStatus acedGetCurrentUCS(AcGeMatrix3d& mat);

// Makes mat the current UCS; mat maps [ucs] to [wcs]. The former UCS is added to the list that
// acedRestorePreviousUCS uses, even when the new one is the same. Model space and paper space have
// a list of ten each. When UCSFOLLOW is 1, the view turns to plan. Returns eInvalidInput when mat
// is not right-handed and orthonormal, and eNoDatabase without an open drawing.
Acad::ErrorStatus acedSetCurrentUCS(const AcGeMatrix3d& mat);

// Makes the newest former UCS current and removes it from the list. When UCSFOLLOW is 1, the view
// turns to plan, so a caller that set UCSFOLLOW to 0 restores the UCS before that variable. Returns
// false when the list is empty or no drawing is open; nothing changes then.
bool acedRestorePreviousUCS();
