// The module as the system loads it.
#pragma once

#include "app/host.h"

// Handle of the module; null before the system has attached it.
HINSTANCE attachedModule();
