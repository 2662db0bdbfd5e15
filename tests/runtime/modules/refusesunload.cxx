// Is unlocked, but refuses to go.
#include "module.h"

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* packet)
{
    tell(message);
    if (message == AcRx::kInitAppMsg)
    {
        acrxUnlockApplication(packet);
    }
    return message == AcRx::kUnloadAppMsg ? AcRx::kRetError : AcRx::kRetOK;
}
