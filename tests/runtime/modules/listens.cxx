// Has a static document reactor, which comes and goes with the module.
#include "acdocman.h"
#include "module.h"

namespace
{
struct Listener : AcApDocManagerReactor
{
    Listener() { acDocManager->addReactor(this); }
    ~Listener() override { acDocManager->removeReactor(this); }
    void documentToBeDestroyed(AcApDocument*) override { acutPrintf(L"<document goes>"); }
};

Listener listener;
}  // namespace

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* packet)
{
    if (message == AcRx::kInitAppMsg)
    {
        acrxUnlockApplication(packet);
    }
    return AcRx::kRetOK;
}
