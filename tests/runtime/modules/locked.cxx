// Never unlocks itself.
#include "module.h"

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void*)
{
    tell(message);
    return AcRx::kRetOK;
}
