// The module as the system loads it.
#pragma once

#include "hostapi/host.h"

// Handle of the module; null before the system has attached it.
HINSTANCE attachedModule();
