// Includes the services that the host offers by name. This header declares nothing itself.
#pragma once

#include "rxdict.h"
#include "rxregsvc.h"
