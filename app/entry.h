// The module as the system loads it.
#pragma once

#include "hostapi/host.h"

// Returns the handle of the module [borrowed]. The handle is null until the system has attached the
// module.
HINSTANCE attachedModule();
