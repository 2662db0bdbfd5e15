// Brings resources of which only the beginning is there.
#include "rulebreaker.h"

asm(".pushsection .rodata\n"
    ".global arxResources, arxResourcesEnd\n"
    ".hidden arxResources, arxResourcesEnd\n"
    ".balign 8\n"
    "arxResources:\n"
    ".long 0, 32, 0xFFFF, 0xFFFF, 7\n"
    "arxResourcesEnd:\n"
    ".popsection\n");

extern "C" AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode, void*)
{
    return AcRx::kRetOK;
}
