// Controls: what newer Windows adds to the messages of edits.
#pragma once

#include "winuser.h"

// The banner lies in an empty edit and is never its text. EM_SETCUEBANNER takes it in lParam,
// wParam keeps it while the edit has the focus; EM_GETCUEBANNER copies it to wParam, lParam
// characters at most with the final NUL. FALSE for no banner.
#define EM_SETCUEBANNER 0x1501
#define EM_GETCUEBANNER 0x1502
