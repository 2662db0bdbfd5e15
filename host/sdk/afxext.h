// MFC's bars and views. This host implements none of them. The header exists because a module
// includes it before the dialog headers, which need it where MFC itself is used.
#pragma once

#include "afxwin.h"
