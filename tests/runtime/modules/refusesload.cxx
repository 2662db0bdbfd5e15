// Does not want to be loaded.
#include "module.h"

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void*)
{
    tell(message);
    return message == AcRx::kInitAppMsg ? AcRx::kRetError : AcRx::kRetOK;
}
