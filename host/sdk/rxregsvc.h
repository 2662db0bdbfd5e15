// The services of the host that concern the module as a whole.
//
// appId is the packet of kInitAppMsg; no other pointer identifies a module.
#pragma once

#include "rxdict.h"
#include "windows.h"

// Returns the dictionary of the host's services [borrowed]. It exists before any module is loaded.
AcRxDictionary* acrxSysRegistry();

// A module with classes of its own calls acrxBuildClassHierarchy in kInitAppMsg, after it has
// created its types, and deleteAcRxClass for each type in kUnloadAppMsg. In this host a type is a
// static object that needs neither call, so both do nothing.
void acrxBuildClassHierarchy();
void deleteAcRxClass(AcRxClass* pClassObj);

// Lock and unlock a module, and state that it supports several drawings. A module is locked when it
// is loaded, and a locked module cannot be unloaded. For an unknown appId they return false and
// change nothing.
bool acrxLockApplication(void* appId);
bool acrxUnlockApplication(void* appId);
bool acrxRegisterAppMDIAware(void* appId);

// Calls AcRxDynamicLinker::loadModule of the host's linker.
bool acrxLoadModule(const ACHAR* moduleName, bool printit, bool asCmd = false);

// Returns the locale id of the product's language: 0x0409 for English, 0x0419 for Russian. It does
// not change while the host runs.
LCID acrxProductLCID();
