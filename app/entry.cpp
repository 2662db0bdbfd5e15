// The functions through which the system and the host enter the module. The host also asks for
// acrxGetApiVersion, which is linked in from the host's own library.
#include "app/entry.h"

#include "app/gridapp.h"

#include "afxdllx.h"

namespace
{
AFX_EXTENSION_MODULE extensionModule;
HINSTANCE instance = nullptr;

bool attach(HINSTANCE module)
{
    instance = module;
    if (!AfxInitExtensionModule(extensionModule, module))
    {
        return false;
    }
    new CDynLinkLibrary(extensionModule);  // MFC keeps it and deletes it
    InitAcUiDLL();
    return true;
}
}  // namespace

HINSTANCE attachedModule()
{
    return instance;
}

extern "C" BOOL APIENTRY DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        return attach(module) ? TRUE : FALSE;
    }
    if (reason == DLL_PROCESS_DETACH)
    {
        AfxTermExtensionModule(extensionModule);
    }
    return TRUE;
}

extern "C" AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* packet)
{
    return netrax::dispatch(gridApp(), message, packet);
}
