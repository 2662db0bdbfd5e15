// The frame that the command works in.
#pragma once

#include "hostapi/host.h"

// Lays the UCS into the plane of the screen: X along the screen's horizontal, Z towards the viewer,
// the origin where it was. Whoever calls it brings the former UCS back (acedRestorePreviousUCS).
//
// Gives the host's answer to the change; on any status but eOk the UCS is the former one and there
// is nothing to go back to. UCSFOLLOW must be 0, or the host swings the view to plan.
Acad::ErrorStatus setViewFrameUcs();
