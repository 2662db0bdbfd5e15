// MFC's common dialogs and property sheets, the same.
#pragma once

#include "afxwin.h"
