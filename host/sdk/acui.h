// The host's dialog library.
#pragma once

#include "adui.h"
#include "acuiComboBox.h"
#include "acuiDialog.h"

// Lets the library's resources join the chain. Called at attach, after the module has joined it.
void InitAcUiDLL();
