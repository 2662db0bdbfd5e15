// Services that the host offers by name, in one include. This header declares nothing itself.
#pragma once

#include "rxdict.h"
#include "rxregsvc.h"
