// Does not answer the version query.
#include "module.h"

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode, void*)
{
    return AcRx::kRetOK;
}
