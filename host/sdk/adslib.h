// Includes all calls of the editor. This header declares nothing itself.
#pragma once

#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "adsdef.h"
