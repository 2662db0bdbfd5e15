// The current UCS.
#pragma once

#include "accmd.h"
#include "acadstrc.h"
#include "acedads.h"
#include "gemat3d.h"

// Sets mat to the matrix that maps [ucs] to [wcs]: its columns are the axes and the origin.
// eNoDatabase without an open drawing; mat is as it was then.
Acad::ErrorStatus acedGetCurrentUCS(AcGeMatrix3d& mat);

// Makes mat the current UCS; it maps [ucs] to [wcs]. The former UCS goes on the list that
// acedRestorePreviousUCS takes from, even when the new one is the same. The list holds ten, in
// model space and in paper space each. With UCSFOLLOW at 1 the view turns to plan.
// eInvalidInput when mat is not right-handed and orthonormal, eNoDatabase without an open drawing.
Acad::ErrorStatus acedSetCurrentUCS(const AcGeMatrix3d& mat);

// Makes the newest former UCS current and takes it off the list. With UCSFOLLOW at 1 the view turns
// to plan, so a caller that set UCSFOLLOW to 0 restores the UCS before that variable.
// False, and nothing changed, when the list is empty or no drawing is open.
bool acedRestorePreviousUCS();
