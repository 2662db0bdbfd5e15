// The coordinate system in which the command works.
#pragma once

#include "hostapi/host.h"

// Sets the UCS into the plane of the screen: X along the screen's horizontal, Z towards the viewer.
// The origin stays where it was. The caller restores the former UCS with acedRestorePreviousUCS.
//
// Returns the host's status of the change. After any status except eOk the UCS is unchanged, and
// the caller must not restore anything. UCSFOLLOW must be 0; otherwise the host swings the view to
// plan.
Acad::ErrorStatus setViewFrameUcs();
