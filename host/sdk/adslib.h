// The editor's calls, in one include.
#pragma once

#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "adsdef.h"
