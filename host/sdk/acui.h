// The host's dialog library, in one include.
#pragma once

#include "adui.h"
#include "acuiComboBox.h"
#include "acuiDialog.h"

// Lets the library's resources join the resource chain. A module calls it at its attach, after it
// has joined the chain itself (CDynLinkLibrary) and before it makes a dialog of the host. A call
// before the module has joined ends the run. A later call, also by another module, does nothing.
// The library stays in the chain for good.
void InitAcUiDLL();
