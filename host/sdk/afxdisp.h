// MFC's automation, the same.
#pragma once

#include "afxwin.h"
