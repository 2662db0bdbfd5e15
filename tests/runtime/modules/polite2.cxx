// The next version of the polite module, to put in its place.
#include "module.h"

namespace
{
void greet()
{
    acutPrintf(L"good evening");
}
}  // namespace

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* packet)
{
    tell(message);
    if (message == AcRx::kInitAppMsg)
    {
        acrxDynamicLinker->unlockApplication(packet);
        acrxDynamicLinker->registerAppMDIAware(packet);
        addGreeting(greet);
    }
    if (message == AcRx::kUnloadAppMsg)
    {
        removeGreeting();
    }
    return AcRx::kRetOK;
}
