// Words that Windows' headers take for their own.
#pragma once

#include <windows.h>

#undef near
#undef far
