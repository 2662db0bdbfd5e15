#include "acedads.h"

HWND adsw_acadMainWnd()
{
    // Only ever compared and handed back; no window stands behind it.
    static char window;
    return reinterpret_cast<HWND>(&window);
}
