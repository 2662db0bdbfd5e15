// Forgets its command when it goes.
#include "module.h"

namespace
{
void greet()
{
    acutPrintf(L"still here");
}
}  // namespace

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* packet)
{
    if (message == AcRx::kInitAppMsg)
    {
        acrxUnlockApplication(packet);
        addGreeting(greet);
    }
    return AcRx::kRetOK;
}
