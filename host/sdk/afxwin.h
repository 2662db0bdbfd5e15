// MFC for an extension module: its place in the chain of modules that resources are looked up in.
#pragma once

#include "windows.h"
#include "tchar.h"
#include "crt.h"
#include "afxstr.h"

// State of one extension module, static in it and begun as { NULL, NULL }.
struct AFX_EXTENSION_MODULE
{
    HMODULE hModule;    // null until AfxInitExtensionModule
    HMODULE hResource;  // where its resources are
};

// Makes the state ready; FALSE for a null handle. A second call changes nothing.
BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module);
// Deletes the module's CDynLinkLibrary and makes the state as it was in the beginning.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state);

// A module's place in the chain. Made with new after AfxInitExtensionModule [adopted].
class CDynLinkLibrary
{
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    virtual ~CDynLinkLibrary();

    HMODULE m_hModule;
    HMODULE m_hResource;

private:
    CDynLinkLibrary(const CDynLinkLibrary&);
    CDynLinkLibrary& operator=(const CDynLinkLibrary&);
};

// The module whose resources are looked at before the chain; the program itself to begin with.
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE module);
