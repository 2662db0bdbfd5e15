// The command that draws a coordinate grid.
#pragma once

#include "hostapi/host.h"

// Asks for a rectangle and shows the grid in it [prints]. When the user accepts the grid, the
// command makes it one group and saves the settings. When the user cancels, the drawing stays as it
// was. The command runs in the context of a document. When it returns, the UCS, UCSICON and
// UCSFOLLOW have the user's own values again.
//
// module  handle of the module [borrowed]. Its resources hold the template of the dialog, and the
//         folder of its file holds properties.ini.
void gridCommand(HINSTANCE module);
