// MFC's common controls, the same.
#pragma once

#include "afxwin.h"
