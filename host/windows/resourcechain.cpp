#include <algorithm>

#include "acui.h"
#include "afxwin.h"
#include "host/basics/breach.h"
#include "host/windows/modules.h"
#include "host/windows/resourcechain.h"

namespace
{
// Returns the chain, the newest module last. It is never destroyed, because modules are unloaded
// while the process ends.
std::vector<CDynLinkLibrary*>& chain()
{
    static std::vector<CDynLinkLibrary*>& libraries = *new std::vector<CDynLinkLibrary*>;
    return libraries;
}

AFX_EXTENSION_MODULE& dialogLibrary()
{
    static AFX_EXTENSION_MODULE state = {nullptr, nullptr};
    return state;
}

HINSTANCE& currentHandle()
{
    static HINSTANCE handle = host::programInstance();
    return handle;
}
}  // namespace

std::vector<HINSTANCE> host::linkedModules()
{
    std::vector<HINSTANCE> modules;
    for (const CDynLinkLibrary* library : chain())
    {
        modules.insert(modules.begin(), library->m_hModule);
    }
    return modules;
}

std::vector<HINSTANCE> host::resourceChain()
{
    std::vector<HINSTANCE> modules;
    for (const CDynLinkLibrary* library : chain())
    {
        modules.insert(modules.begin(), library->m_hResource);
    }
    modules.insert(modules.begin(), AfxGetResourceHandle());
    return modules;
}

HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type)
{
    for (const HINSTANCE module : host::resourceChain())
    {
        if (FindResourceW(module, name, type) != nullptr)
        {
            return module;
        }
    }
    return AfxGetResourceHandle();
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module)
{
    if (state.hModule == nullptr)
    {
        state.hModule = module;
        state.hResource = module;
    }
    return state.hModule != nullptr;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state)
{
    const std::vector<CDynLinkLibrary*> libraries = chain();
    for (CDynLinkLibrary* library : libraries)
    {
        if (library->m_hModule == state.hModule)
        {
            delete library;
        }
    }
    state = AFX_EXTENSION_MODULE();
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state)
    : m_hModule(state.hModule), m_hResource(state.hResource)
{
    if (m_hModule == nullptr)
    {
        host::breach("CDynLinkLibrary", "made before AfxInitExtensionModule");
    }
    chain().push_back(this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    std::erase(chain(), this);
}

HINSTANCE AfxGetResourceHandle()
{
    return currentHandle();
}

void AfxSetResourceHandle(HINSTANCE module)
{
    currentHandle() = module;
}

bool host::isDialogLibraryLinked()
{
    return dialogLibrary().hModule != nullptr;
}

// The library stays in the chain: the host has no call that removes it.
void InitAcUiDLL()
{
    if (chain().empty())
    {
        host::breach("InitAcUiDLL", "called before the module joined the resource chain");
    }
    AFX_EXTENSION_MODULE& state = dialogLibrary();
    if (state.hModule == nullptr)
    {
        AfxInitExtensionModule(state, host::instanceHolding(&state));
        new CDynLinkLibrary(state);
    }
}
