// MFC's drag and drop, the same.
#pragma once

#include "afxwin.h"
