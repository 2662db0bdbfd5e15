// The command that draws a coordinate grid.
#pragma once

#include "hostapi/host.h"

// Asks for a rectangle, shows the grid in it, and keeps it when the user takes it: as one group,
// with the settings saved. [prints] Cancelling leaves the drawing as it was. Runs in a document's
// context; the UCS, UCSICON and UCSFOLLOW are the user's own again when it returns.
//
// module  handle of the module: the dialog's template is among its resources, properties.ini beside
//         its file
void gridCommand(HINSTANCE module);
