// Commands that modules register.
#pragma once

#include "rxdefs.h"
#include "rxregsvc.h"
#include "windows.h"

// Flags of a command; they are bits.
#define ACRX_CMD_MODAL 0                   // only while no other command runs
#define ACRX_CMD_TRANSPARENT 0x1           // also at the prompt of another command, after '
#define ACRX_CMD_USEPICKSET 0x2            // reads the selection; nothing can be selected here
#define ACRX_CMD_REDRAW 0x4                // reads and changes the selection
#define ACRX_CMD_NOPERSPECTIVE 0x8         // not in a perspective view; there is none here
#define ACRX_CMD_NOTILEMODE 0x20           // not in model space
#define ACRX_CMD_NOPAPERSPACE 0x40         // not in paper space
#define ACRX_CMD_SESSION 0x200000          // in application context, without a lock of the document
#define ACRX_CMD_NO_UNDO_MARKER 0x1000000  // is no step of its own for U
#define ACRX_CMD_NOBEDIT 0x2000000         // not while a block is edited

// The command stack [borrowed].
#define acedRegCmds AcEdCommandStack::cast(acrxSysRegistry()->at(L"ACAD_REGISTERED_COMMANDS"))

// Menus that come with a command. This host has none, so the pointer is never read.
class AcEdUIContext;

// A registered command. The texts are the stack's and are good until the command is removed.
class AcEdCommand : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcEdCommand)

    // The name in every language, and the name that the user types without an underscore.
    virtual const ACHAR* globalName() const = 0;
    virtual const ACHAR* localName() const = 0;
    // Bits of ACRX_CMD_..., and what runs when the command is typed.
    virtual Adesk::Int32 commandFlags() const = 0;
    virtual AcRxFunctionPtr functionAddr() const = 0;
};

// The registered commands. A group is made with its first command. Letter case of names does not
// count; texts are copied.
class AcEdCommandStack : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcEdCommandStack)

    // Registers a command. hResourceHandle is current while the command runs, unless it is null.
    // While it runs without ACRX_CMD_SESSION its document is locked for write. UIContext and fcode
    // have no effect. cmdPtrRet, when given, is set to the command [borrowed].
    // A module removes its commands in kUnloadAppMsg; one that is left behind ends the run.
    // eInvalidInput for an empty name or a null function, eDuplicateKey when the group holds the
    // global or the local name already.
    virtual Acad::ErrorStatus addCommand(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName,
                                         const ACHAR* cmdLocalName, Adesk::Int32 commandFlags,
                                         AcRxFunctionPtr functionAddr,
                                         AcEdUIContext* UIContext = nullptr, int fcode = -1,
                                         HINSTANCE hResourceHandle = nullptr,
                                         AcEdCommand** cmdPtrRet = nullptr) = 0;

    // Removes a command, or a group with all its commands. A group goes with its last command. A
    // command that is running may remove itself and ends as usual.
    // eInvalidInput for an empty name, eKeyNotFound when there is no such command or group.
    virtual Acad::ErrorStatus removeCmd(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName) = 0;
    virtual Acad::ErrorStatus removeGroup(const ACHAR* groupName) = 0;

    // Finds a command by its local name, and with globalLookup also by its global name [borrowed];
    // null when there is none. Every group is searched, the newest first; allGroups has no effect.
    virtual AcEdCommand* lookupCmd(const ACHAR* cmdName, bool globalLookup = false,
                                   bool allGroups = false) const = 0;
};
