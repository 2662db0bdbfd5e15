// Services of the host for the module as a whole.
//
// pkt and appId are what kInitAppMsg brought; no other pointer stands for a module.
#pragma once

#include "rxdict.h"
#include "windows.h"

AcRxDictionary* acrxSysRegistry();

// Run-time types live as long as the module that declares them; these calls keep the two steps
// that a module with classes of its own goes through.
void acrxBuildClassHierarchy();
void deleteAcRxClass(AcRxClass* pClassObj);

// A module is locked when it is loaded, and a locked one cannot be unloaded.
bool acrxLockApplication(void* appId);
bool acrxUnlockApplication(void* appId);
bool acrxRegisterAppMDIAware(void* appId);

bool acrxLoadModule(const ACHAR* moduleName, bool printit, bool asCmd = false);

// Locale id of the product's language: 0x0409 English, 0x0419 Russian.
LCID acrxProductLCID();
