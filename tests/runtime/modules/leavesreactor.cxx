// Forgets its document reactor when it goes.
#include "acdocman.h"
#include "module.h"

namespace
{
struct Listener : AcApDocManagerReactor
{
    void documentToBeDestroyed(AcApDocument*) override {}
};
}  // namespace

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* packet)
{
    if (message == AcRx::kInitAppMsg)
    {
        acrxUnlockApplication(packet);
        static Listener* const listener = new Listener;
        acDocManager->addReactor(listener);
    }
    return AcRx::kRetOK;
}
