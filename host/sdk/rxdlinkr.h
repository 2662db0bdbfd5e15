// Loading and unloading of modules.
#pragma once

#include "acadapp.h"
#include "rxregsvc.h"

// Key of the linker in the system registry, and the linker itself [borrowed].
#define ACRX_DYNAMIC_LINKER L"DynamicLinker"
#define acrxDynamicLinker AcRxDynamicLinker::cast(acrxSysRegistry()->at(ACRX_DYNAMIC_LINKER))

// The service that loads modules and knows which are loaded. Calls that take a name find a module
// by its path, or by its file name with or without the extension.
class AcRxDynamicLinker : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcRxDynamicLinker)

    // Loads a module, starts it and tells it of the open drawing. A name without extension gets
    // ".arx"; a name without folder means a module of that name that was loaded before, then a file
    // in the current folder, then one beside the module that the session was started with.
    // Loading a module again only counts. With printit set a failure is reported [prints].
    // False when the file is no module or the module refuses to start.
    virtual bool loadModule(const ACHAR* fileName, bool printit, bool asCmd = false) = 0;
    // Takes back one load, or all of them with asCmd set; the last one unloads the module.
    // False when it is not loaded, is locked, refuses, or one of its commands is running. A module
    // that goes and leaves a command or a document reactor behind ends the run.
    virtual bool unloadModule(const ACHAR* fileName, bool asCmd = false) = 0;
    // loadModule under another name; the reason has no effect here.
    virtual bool loadApp(const ACHAR* appName, AcadApp::LoadReasons al, bool printit,
                         bool asCmd = false) = 0;

    // Each of these three acts on the module whose packet of kInitAppMsg is pkt; false, and nothing
    // changed, for any other pointer. A module is locked when it is loaded, and a locked module
    // cannot be unloaded; registerAppMDIAware says that it copes with several drawings.
    virtual bool lockApplication(void* pkt) const = 0;
    virtual bool unlockApplication(void* pkt) const = 0;
    // False also when no such module is loaded.
    virtual bool isApplicationLocked(const ACHAR* name) const = 0;
    // See lockApplication.
    virtual bool registerAppMDIAware(void* pkt) const = 0;
    // False also when no such module is loaded.
    virtual bool isAppMDIAware(const ACHAR* name) const = 0;
};
