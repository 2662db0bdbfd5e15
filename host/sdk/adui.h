// Includes the dialog library that the host's own is based on. This header declares nothing itself.
#pragma once

#include "aduiButton.h"
#include "aduiDialog.h"
