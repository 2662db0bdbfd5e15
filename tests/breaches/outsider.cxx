// Never joins the chain of resources, and uses the dialog library all the same.
#include "rulebreaker.h"

namespace
{
const Rule rules[] = {
    {L"DIALOG", [] { CAcUiDialog dialog(1); }, ACRX_CMD_MODAL, false},
    {L"LIBRARY", InitAcUiDLL, ACRX_CMD_MODAL, false},
};
}  // namespace

extern "C" AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void*)
{
    if (message == AcRx::kInitAppMsg)
    {
        offer(rules, nullptr);
    }
    if (message == AcRx::kUnloadAppMsg)
    {
        takeBack();
    }
    return AcRx::kRetOK;
}
