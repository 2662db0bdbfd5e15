// Services of the host for the module as a whole.
//
// appId is the packet that kInitAppMsg brought; no other pointer stands for a module.
#pragma once

#include "rxdict.h"
#include "windows.h"

// The dictionary of the host's services [borrowed]; it is there before any module is loaded.
AcRxDictionary* acrxSysRegistry();

// A module with classes of its own calls the first one in kInitAppMsg, after it has made its types,
// and the second one for each type in kUnloadAppMsg. Here a type is a static object that needs
// neither, so both do nothing.
void acrxBuildClassHierarchy();
void deleteAcRxClass(AcRxClass* pClassObj);

// A module is locked when it is loaded, and a locked module cannot be unloaded. The third call says
// that the module copes with several drawings. False, and nothing changed, for another appId.
bool acrxLockApplication(void* appId);
bool acrxUnlockApplication(void* appId);
bool acrxRegisterAppMDIAware(void* appId);

// AcRxDynamicLinker::loadModule of the host's linker.
bool acrxLoadModule(const ACHAR* moduleName, bool printit, bool asCmd = false);

// Locale id of the product's language: 0x0409 for English, 0x0419 for Russian. It does not change
// while the host runs.
LCID acrxProductLCID();
