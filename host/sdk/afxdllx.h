// Start of an extension module. On Windows this gives the module MFC's own entry before DllMain;
// here every module gets it with the host's start-up code, and nothing is left to define.
#pragma once

#include "afxwin.h"
