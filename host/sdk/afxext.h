// MFC's bars and views: nothing of them is here. The host's dialog headers want it before them.
#pragma once

#include "afxwin.h"
