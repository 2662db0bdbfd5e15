// Controls: messages that newer versions of Windows add to edits.
#pragma once

#include "winuser.h"

// An empty edit shows its banner, which is never the edit's text. EM_SETCUEBANNER takes the banner
// in lParam; wParam keeps it visible while the edit has the focus. EM_GETCUEBANNER copies it to
// wParam, at most lParam characters including the final NUL, and returns FALSE if there is no
// banner.
#define EM_SETCUEBANNER 0x1501
#define EM_GETCUEBANNER 0x1502
