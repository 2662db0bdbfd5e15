// The dialog library under the host's own, in one include. This header declares nothing itself.
#pragma once

#include "aduiButton.h"
#include "aduiDialog.h"
