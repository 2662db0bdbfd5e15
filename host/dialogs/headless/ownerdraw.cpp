#include "host/dialogs/ownerdraw.h"

namespace host
{
INT_PTR answerDrawing(UINT, LPARAM)
{
    return FALSE;
}

void setTooltip(HWND, const wchar_t*) {}
}  // namespace host
