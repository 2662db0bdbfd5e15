#include "app/rxapp.h"

#include <cstddef>

#include "app/entry.h"
#include "app/registration.h"

namespace netrax
{
AcRxDbxApp::AcRxDbxApp() : m_unlock(true), m_mdiAware(true), m_module(nullptr) {}

AcRx::AppRetCode AcRxDbxApp::initApp(void* packet)
{
    m_module = attachedModule();
    AcRxDynamicLinker* linker = acrxDynamicLinker;
    if (linker != nullptr && m_unlock)
    {
        linker->unlockApplication(packet);
    }
    if (linker != nullptr && m_mdiAware)
    {
        linker->registerAppMDIAware(packet);
    }
    registerClasses(customClassSlots());
    return AcRx::kRetOK;
}

AcRx::AppRetCode AcRxDbxApp::unloadApp(void*)
{
    deleteClasses(customClassSlots());
    return AcRx::kRetOK;
}

AcRx::AppRetCode AcRxArxApp::initApp(void* packet)
{
    const AcRx::AppRetCode result = AcRxDbxApp::initApp(packet);
    registerCommands(commandSlots(), moduleHandle());
    return result;
}

AcRx::AppRetCode AcRxArxApp::unloadApp(void* packet)
{
    const AcRx::AppRetCode result = AcRxDbxApp::unloadApp(packet);
    removeCommands(commandSlots());
    return result;
}

AcRx::AppRetCode AcRxArxApp::loadDrawing(void* packet)
{
    defineFunctions(lispSlots(), moduleHandle());
    return AcRxDbxApp::loadDrawing(packet);
}

AcRx::AppRetCode AcRxArxApp::unloadDrawing(void* packet)
{
    undefineFunctions(lispSlots(), moduleHandle());
    return AcRxDbxApp::unloadDrawing(packet);
}

AcRx::AppRetCode AcRxArxApp::invokeFunction(void* packet)
{
    ::invokeFunction(lispSlots());
    return AcRxDbxApp::invokeFunction(packet);
}

AcRx::AppRetCode dispatch(AcRxDbxApp& app, AcRx::AppMsgCode message, void* packet)
{
    typedef AcRx::AppRetCode (AcRxDbxApp::*Handler)(void*);
    const Handler handlers[] = {
        &AcRxDbxApp::nullMessage, &AcRxDbxApp::initApp,       &AcRxDbxApp::unloadApp,
        &AcRxDbxApp::loadDrawing, &AcRxDbxApp::unloadDrawing, &AcRxDbxApp::invokeFunction,
        &AcRxDbxApp::configure,   &AcRxDbxApp::end,           &AcRxDbxApp::quit,
        &AcRxDbxApp::save,        &AcRxDbxApp::dependency,    &AcRxDbxApp::noDependency,
        &AcRxDbxApp::oleUnload,   &AcRxDbxApp::preQuit,       &AcRxDbxApp::initDialog,
        &AcRxDbxApp::endDialog,
    };
    const std::size_t count = sizeof(handlers) / sizeof(handlers[0]);
    static_assert(count == AcRx::kEndDialogMsg + 1, "handlers stand in the order of the codes");

    const unsigned int code = static_cast<unsigned int>(message);
    return code < count ? (app.*handlers[code])(packet) : AcRx::kRetOK;
}
}  // namespace netrax
