// Removes macros of Windows' headers that are plain words.
#pragma once

#include <windows.h>

#undef near
#undef far
