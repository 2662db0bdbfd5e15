// The service that loads and unloads modules.
#pragma once

#include "acadapp.h"
#include "rxregsvc.h"

// The key of the linker in the system registry, and the linker itself [borrowed], which exists as
// long as the host runs.
#define ACRX_DYNAMIC_LINKER L"DynamicLinker"
#define acrxDynamicLinker AcRxDynamicLinker::cast(acrxSysRegistry()->at(ACRX_DYNAMIC_LINKER))

// Loads modules and knows which ones are loaded. Calls that take a name find a module by its path,
// or by its file name with or without the extension.
class AcRxDynamicLinker : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcRxDynamicLinker)

    // Loads a module, starts it and notifies it of the open drawing. A name without extension gets
    // ".arx". A name without folder is looked up among the modules that were loaded before, then in
    // the current folder, then in the folder of the module that the session was started with.
    // Loading a loaded module again only counts the load. With printit set a failure is reported
    // [prints]. Returns false when the file is not a module or the module refuses to start.
    virtual bool loadModule(const ACHAR* fileName, bool printit, bool asCmd = false) = 0;
    // Takes back one load, or all loads with asCmd set; the last one unloads the module. Returns
    // false when the module is not loaded, is locked or refuses, or when one of its commands is
    // running. A module that leaves a command or a document reactor behind when it is unloaded ends
    // the run.
    virtual bool unloadModule(const ACHAR* fileName, bool asCmd = false) = 0;
    // Does what loadModule does; the reason has no effect here.
    virtual bool loadApp(const ACHAR* appName, AcadApp::LoadReasons al, bool printit,
                         bool asCmd = false) = 0;

    // Lock and unlock the module whose packet of kInitAppMsg is pkt. For any other pointer they
    // return false and change nothing. A module is locked when it is loaded, and a locked module
    // cannot be unloaded.
    virtual bool lockApplication(void* pkt) const = 0;
    virtual bool unlockApplication(void* pkt) const = 0;
    // Tells whether the module is locked. Returns false when no such module is loaded.
    virtual bool isApplicationLocked(const ACHAR* name) const = 0;
    // States that the module whose packet is pkt supports several drawings. For any other pointer
    // the call returns false and changes nothing.
    virtual bool registerAppMDIAware(void* pkt) const = 0;
    // Tells whether the module has stated that. Returns false when no such module is loaded.
    virtual bool isAppMDIAware(const ACHAR* name) const = 0;
};
