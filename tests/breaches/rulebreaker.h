// Shared by the modules here: a command for each rule that a module breaks.
#pragma once

#include "acdocman.h"
#include "accmd.h"
#include "acui.h"
#include "rxdlinkr.h"

struct Rule
{
    const wchar_t* command;
    AcRxFunctionPtr breakIt;
    int flags = ACRX_CMD_MODAL;
    bool lendResources = true;  // the host pushes the module's handle around the command
};

template <std::size_t count>
void offer(const Rule (&rules)[count], HINSTANCE module)
{
    for (const Rule& rule : rules)
    {
        acedRegCmds->addCommand(L"Rules", rule.command, rule.command, rule.flags, rule.breakIt,
                                nullptr, -1, rule.lendResources ? module : nullptr);
    }
}

inline void takeBack()
{
    acedRegCmds->removeGroup(L"Rules");
}

// Joins and leaves the chain of resources as every module does.
inline BOOL join(AFX_EXTENSION_MODULE& state, HINSTANCE module, DWORD reason)
{
    if (reason == DLL_PROCESS_DETACH)
    {
        AfxTermExtensionModule(state);
        return TRUE;
    }
    AfxInitExtensionModule(state, module);
    new CDynLinkLibrary(state);
    InitAcUiDLL();
    return TRUE;
}
