// What passes between the host and a module.
#pragma once

#include "adesk.h"

// Makes a function of a module visible to the host. A module shows the host acrxEntryPoint and
// acrxGetApiVersion and nothing else.
#define ACRX_MODULE_EXPORT __attribute__((visibility("default")))

// Generation of the interface; a module built against another one is not loaded.
#define ACRX_API_VERSION 0x00130001

namespace AcRx
{
// What the host tells a module through acrxEntryPoint. Later hosts send more messages, so a module
// answers kRetOK to every number that it does not know. The host sends kInitAppMsg once after it
// has loaded the module, then kLoadDwgMsg when a drawing is open; kUnloadDwgMsg and kUnloadAppMsg
// before it unloads the module. Only a module with LISP functions hears of later drawings.
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

// Answer to a message. kRetError to kInitAppMsg, or to the kLoadDwgMsg that follows it, unloads the
// module; to kUnloadAppMsg it refuses the unloading. The host ignores other answers.
enum AppRetCode
{
    kRetOK = 0,
    kRetError = 3
};
}  // namespace AcRx

// What runs when the user types a command; it must let no exception out.
typedef void (*AcRxFunctionPtr)();

// Defined by the module; the host calls it with each message. The packet of kInitAppMsg stands for
// the module in acrxUnlockApplication and the like and is good until the module is unloaded. The
// function must let no exception out.
extern "C" ACRX_MODULE_EXPORT AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt);
// Tells ACRX_API_VERSION as it was when the module was built. The host's library defines it; the
// module only exports it.
extern "C" ACRX_MODULE_EXPORT int acrxGetApiVersion();
