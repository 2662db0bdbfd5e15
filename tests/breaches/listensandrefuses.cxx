// Is heard of by its static object, refuses to be attached and goes without a word.
#include "rulebreaker.h"

namespace
{
struct Listener : AcApDocManagerReactor
{
    Listener() { acDocManager->addReactor(this); }
};

Listener listener;
}  // namespace

extern "C" BOOL APIENTRY DllMain(HINSTANCE, DWORD, LPVOID)
{
    return FALSE;
}

extern "C" AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode, void*)
{
    return AcRx::kRetOK;
}
