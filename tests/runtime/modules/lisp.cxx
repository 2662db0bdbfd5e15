// Defines two functions that are commands: one called by message, one by its own address.
#include "acedads.h"
#include "module.h"

namespace
{
int called()
{
    acutPrintf(L"<called %d>", acedGetFunCode());
    return RTNORM;
}
}  // namespace

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* packet)
{
    tell(message);
    switch (message)
    {
        case AcRx::kInitAppMsg:
            acrxUnlockApplication(packet);
            break;
        case AcRx::kLoadDwgMsg:
            acedDefun(L"C:ASK", 7);
            acedDefun(L"C:TELL", 8);
            acedRegFunc(called, 8);
            break;
        case AcRx::kUnloadDwgMsg:
            acedUndef(L"C:ASK", 7);
            acedUndef(L"C:TELL", 8);
            break;
        case AcRx::kInvkSubrMsg:
            acutPrintf(L"<asked %d>", acedGetFunCode());
            break;
        default:
            break;
    }
    return AcRx::kRetOK;
}
