// The host's dialog library, in one include.
#pragma once

#include "adui.h"
#include "acuiComboBox.h"
#include "acuiDialog.h"

// Adds the library's resources to the resource chain, where they stay as long as the host runs. A
// module calls this function when it is attached, after it has joined the chain itself
// (CDynLinkLibrary) and before it creates a dialog of the host. A call before the module has joined
// ends the run. A later call, by this or another module, does nothing.
void InitAcUiDLL();
