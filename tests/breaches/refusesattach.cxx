// Does not want to be attached, though nobody asked who could give it up.
#include "rulebreaker.h"

extern "C" BOOL APIENTRY DllMain(HINSTANCE, DWORD, LPVOID)
{
    return FALSE;
}
