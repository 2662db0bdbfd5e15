// Made for the next generation of the host.
#include "module.h"

int acrxGetApiVersion()
{
    return ACRX_API_VERSION + 0x10000;
}

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode, void*)
{
    return AcRx::kRetOK;
}
