// Commands that modules register.
#pragma once

#include "rxdefs.h"
#include "rxregsvc.h"
#include "windows.h"

#define ACRX_CMD_MODAL 0
#define ACRX_CMD_TRANSPARENT 0x1
#define ACRX_CMD_USEPICKSET 0x2
#define ACRX_CMD_REDRAW 0x4
#define ACRX_CMD_NOPERSPECTIVE 0x8
#define ACRX_CMD_NOTILEMODE 0x20
#define ACRX_CMD_NOPAPERSPACE 0x40
#define ACRX_CMD_SESSION 0x200000
#define ACRX_CMD_NO_UNDO_MARKER 0x1000000
#define ACRX_CMD_NOBEDIT 0x2000000

#define acedRegCmds AcEdCommandStack::cast(acrxSysRegistry()->at(L"ACAD_REGISTERED_COMMANDS"))

class AcEdUIContext;

class AcEdCommand : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcEdCommand)

    virtual const ACHAR* globalName() const = 0;
    virtual const ACHAR* localName() const = 0;
    virtual Adesk::Int32 commandFlags() const = 0;
    virtual AcRxFunctionPtr functionAddr() const = 0;
};

// Groups are made as they are needed. Letter case of names does not count.
class AcEdCommandStack : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcEdCommandStack)

    // eDuplicateKey when the group holds the global or the local name already. hResourceHandle is
    // current while the command runs. The command that cmdPtrRet shows stays the stack's.
    virtual Acad::ErrorStatus addCommand(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName,
                                         const ACHAR* cmdLocalName, Adesk::Int32 commandFlags,
                                         AcRxFunctionPtr functionAddr,
                                         AcEdUIContext* UIContext = nullptr, int fcode = -1,
                                         HINSTANCE hResourceHandle = nullptr,
                                         AcEdCommand** cmdPtrRet = nullptr) = 0;

    // eKeyNotFound when there is no such command or group.
    virtual Acad::ErrorStatus removeCmd(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName) = 0;
    virtual Acad::ErrorStatus removeGroup(const ACHAR* groupName) = 0;

    // By local name, or by global name as well when globalLookup is set; null when there is none.
    // All groups are searched in any case, the newest first.
    virtual AcEdCommand* lookupCmd(const ACHAR* cmdName, bool globalLookup = false,
                                   bool allGroups = false) const = 0;
};
