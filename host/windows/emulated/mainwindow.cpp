#include "acedads.h"

HWND adsw_acadMainWnd()
{
    // The handle is only compared and returned. No real window belongs to it.
    static char window;
    return reinterpret_cast<HWND>(&window);
}
