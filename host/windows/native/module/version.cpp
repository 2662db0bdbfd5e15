// This file is linked into every module. It provides the answer to the host's version query, which
// the linker takes from the host's import library.
#include "rxdefs.h"

extern "C" int acrxGetApiVersion()
{
    return ACRX_API_VERSION;
}
