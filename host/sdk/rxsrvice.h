// Objects that the host offers by name; they are found in its registry.
#pragma once

#include "rxdict.h"
#include "rxregsvc.h"
