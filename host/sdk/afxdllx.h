// The start-up code of an extension module. On Windows this header gives the module MFC's own entry
// before DllMain. Here the host's start-up code gives every module that entry, so the header
// defines nothing.
#pragma once

#include "afxwin.h"
