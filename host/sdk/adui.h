// The dialog library under the host's own.
#pragma once

#include "aduiButton.h"
#include "aduiDialog.h"
