// Loading and unloading of modules.
#pragma once

#include "acadapp.h"
#include "rxregsvc.h"

#define ACRX_DYNAMIC_LINKER L"DynamicLinker"
#define acrxDynamicLinker AcRxDynamicLinker::cast(acrxSysRegistry()->at(ACRX_DYNAMIC_LINKER))

// Calls that take a name find a module by its path or by its file name, letter case ignored.
class AcRxDynamicLinker : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcRxDynamicLinker)

    // Loading a second time only counts: as many unloads follow, unless asCmd asks for one.
    virtual bool loadModule(const ACHAR* fileName, bool printit, bool asCmd = false) = 0;
    virtual bool unloadModule(const ACHAR* fileName, bool asCmd = false) = 0;
    virtual bool loadApp(const ACHAR* appName, AcadApp::LoadReasons al, bool printit,
                         bool asCmd = false) = 0;

    // pkt is the packet of kInitAppMsg; false for any other pointer.
    virtual bool lockApplication(void* pkt) const = 0;
    virtual bool unlockApplication(void* pkt) const = 0;
    virtual bool isApplicationLocked(const ACHAR* name) const = 0;
    virtual bool registerAppMDIAware(void* pkt) const = 0;
    virtual bool isAppMDIAware(const ACHAR* name) const = 0;
};
