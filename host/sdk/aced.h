// The current UCS.
#pragma once

#include "accmd.h"
#include "acadstrc.h"
#include "acedads.h"
#include "gemat3d.h"

// Maps coordinates of the current UCS to the WCS.
Acad::ErrorStatus acedGetCurrentUCS(AcGeMatrix3d& mat);

// mat has to be right-handed and orthonormal, else eInvalidInput. The former UCS goes on the list
// that acedRestorePreviousUCS takes from; the new one has no name.
Acad::ErrorStatus acedSetCurrentUCS(const AcGeMatrix3d& mat);

// False, and nothing changed, when there is no former UCS.
bool acedRestorePreviousUCS();
