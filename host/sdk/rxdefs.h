// What passes between the host and a module.
#pragma once

#include "adesk.h"

// A module shows the host these two functions and nothing else.
#define ACRX_MODULE_EXPORT __attribute__((visibility("default")))

// Generation of the interface; a module built against another one is not loaded.
#define ACRX_API_VERSION 0x00130001

namespace AcRx
{
enum AppMsgCode : int  // later hosts send more
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

// kRetError unloads the module; as the answer to kUnloadAppMsg it refuses the unloading.
enum AppRetCode
{
    kRetOK = 0,
    kRetError = 3
};
}  // namespace AcRx

typedef void (*AcRxFunctionPtr)();

extern "C" ACRX_MODULE_EXPORT AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt);
extern "C" ACRX_MODULE_EXPORT int acrxGetApiVersion();
