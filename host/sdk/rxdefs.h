// The messages and answers that pass between the host and a module.
#pragma once

#include "adesk.h"

// Makes a function of a module visible to the host. A module exports acrxEntryPoint and
// acrxGetApiVersion and nothing else.
#define ACRX_MODULE_EXPORT __attribute__((visibility("default")))

// The generation of the interface. The host does not load a module that was built against another
// one.
#define ACRX_API_VERSION 0x00130001

namespace AcRx
{
// The messages that the host sends to a module through acrxEntryPoint. Later hosts send more
// messages, so a module answers kRetOK to every number that it does not know. The host sends
// kInitAppMsg once after it has loaded the module, and then kLoadDwgMsg when a drawing is open. It
// sends kUnloadDwgMsg and kUnloadAppMsg before it unloads the module. Only a module with LISP
// functions is notified of later drawings.
enum AppMsgCode : int
{
    kNullMsg = 0,
    kInitAppMsg = 1,
    kUnloadAppMsg = 2,
    kLoadDwgMsg = 3,
    kUnloadDwgMsg = 4,
    kInvkSubrMsg = 5,
    kCfgMsg = 6,
    kEndMsg = 7,
    kQuitMsg = 8,
    kSaveMsg = 9,
    kDependencyMsg = 10,
    kNoDependencyMsg = 11,
    kOleUnloadAppMsg = 12,
    kPreQuitMsg = 13,
    kInitDialogMsg = 14,
    kEndDialogMsg = 15
};

// The answer to a message. kRetError to kInitAppMsg, or to the kLoadDwgMsg that follows it, unloads
// the module. kRetError to kUnloadAppMsg refuses the unloading. The host ignores other answers.
enum AppRetCode
{
    kRetOK = 0,
    kRetError = 3
};
}  // namespace AcRx

// The function that runs when the user types a command. It must let no exception out.
typedef void (*AcRxFunctionPtr)();

// Receives each message of the host. The module defines it. The packet of kInitAppMsg identifies
// the module in acrxUnlockApplication and similar calls and is good until the module is unloaded.
// The function must let no exception out.
extern "C" ACRX_MODULE_EXPORT AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt);
// Returns the ACRX_API_VERSION that the module was built with. The host's library defines the
// function; the module only exports it.
extern "C" ACRX_MODULE_EXPORT int acrxGetApiVersion();
