#include "host/dialogs/place.h"

namespace host
{
void placeDialog(HWND dialog)
{
    RECT screen;
    RECT frame;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    GetWindowRect(dialog, &frame);
    SetWindowLongPtrW(dialog, GWL_EXSTYLE,
                      GetWindowLongPtrW(dialog, GWL_EXSTYLE) | WS_EX_APPWINDOW);
    SetWindowPos(dialog, nullptr, (screen.left + screen.right - (frame.right - frame.left)) / 2,
                 (screen.top + screen.bottom - (frame.bottom - frame.top)) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
}  // namespace host
