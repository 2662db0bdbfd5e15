// MFC's automation. This host implements no part of it. The header exists because a module includes
// it before the dialog headers, which need it where MFC itself is used.
#pragma once

#include "afxwin.h"
