// Joins the chain of resources and never leaves it.
#include "rulebreaker.h"

extern "C" BOOL APIENTRY DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    static AFX_EXTENSION_MODULE extension = {nullptr, nullptr};
    return reason == DLL_PROCESS_DETACH || join(extension, module, reason);
}

extern "C" AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* packet)
{
    if (message == AcRx::kInitAppMsg)
    {
        acrxUnlockApplication(packet);
    }
    return AcRx::kRetOK;
}
