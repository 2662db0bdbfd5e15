// Refuses to be attached, although no loader that could give it up has asked.
#include "rulebreaker.h"

extern "C" BOOL APIENTRY DllMain(HINSTANCE, DWORD, LPVOID)
{
    return FALSE;
}
