// Shared by the modules here: each prints the messages that it receives on the command line.
#pragma once

#include "accmd.h"
#include "acutads.h"
#include "rxdlinkr.h"

inline void tell(AcRx::AppMsgCode message)
{
    const wchar_t* const names[] = {L"null",       L"init",        L"unload",
                                    L"drawing in", L"drawing out", L"call"};
    acutPrintf(L"<%s>", message <= AcRx::kInvkSubrMsg ? names[message] : L"other");
}

inline void addGreeting(AcRxFunctionPtr greet)
{
    acedRegCmds->addCommand(L"Greetings", L"greet", L"greet", ACRX_CMD_MODAL, greet);
}

inline void removeGreeting()
{
    acedRegCmds->removeCmd(L"Greetings", L"greet");
}
