#include "acedads.h"

HWND adsw_acadMainWnd()
{
    // The handle is only compared and handed back. It does not stand for a real window.
    static char window;
    return reinterpret_cast<HWND>(&window);
}
