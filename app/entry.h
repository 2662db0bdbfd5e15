// The entry point through which the system loads the module.
#pragma once

#include "hostapi/host.h"

// Returns the handle of the module [borrowed]. The handle is null until the system has attached the
// module.
HINSTANCE attachedModule();
