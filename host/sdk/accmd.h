// The commands that modules register.
#pragma once

#include "rxdefs.h"
#include "rxregsvc.h"
#include "windows.h"

// The flags of a command, which are bits.
#define ACRX_CMD_MODAL 0            // runs only while no other command runs
#define ACRX_CMD_TRANSPARENT 0x1    // also runs at the prompt of another command, typed after '
#define ACRX_CMD_USEPICKSET 0x2     // reads the selection, which is always empty here
#define ACRX_CMD_REDRAW 0x4         // reads and changes the selection
#define ACRX_CMD_NOPERSPECTIVE 0x8  // does not run in a perspective view; there is none here
#define ACRX_CMD_NOTILEMODE 0x20    // does not run in model space
#define ACRX_CMD_NOPAPERSPACE 0x40  // does not run in paper space
#define ACRX_CMD_SESSION 0x200000   // runs in application context, without a lock of the document
#define ACRX_CMD_NO_UNDO_MARKER 0x1000000  // U does not count the command as a step
#define ACRX_CMD_NOBEDIT 0x2000000         // does not run while a block is edited

// Returns the command stack [borrowed], which exists as long as the host runs.
#define acedRegCmds AcEdCommandStack::cast(acrxSysRegistry()->at(L"ACAD_REGISTERED_COMMANDS"))

// The menus that come with a command. This host has no menus, so it never reads the pointer.
class AcEdUIContext;

// A registered command. Its texts are [borrowed] from the command stack and good until the command
// is removed.
class AcEdCommand : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcEdCommand)

    // Return the name that works in every language, and the name that the user types without an
    // underscore.
    virtual const ACHAR* globalName() const = 0;
    virtual const ACHAR* localName() const = 0;
    // Return the flags (ACRX_CMD_...), and the function that runs when the command is typed.
    virtual Adesk::Int32 commandFlags() const = 0;
    virtual AcRxFunctionPtr functionAddr() const = 0;
};

// The registered commands. A group is created with its first command. Names are compared without
// regard to letter case. Texts are copied.
class AcEdCommandStack : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcEdCommandStack)

    // Registers a command. While the command runs, hResourceHandle is the current resource handle
    // unless it is null, and the document is locked for write unless ACRX_CMD_SESSION is set.
    // UIContext and fcode have no effect. When cmdPtrRet is not null, it is set to the command
    // [borrowed]. A module removes its commands in kUnloadAppMsg; a command that is left behind
    // ends the run. Returns eInvalidInput for an empty or null name and for a null function, and
    // eDuplicateKey when the group holds the global or the local name already.
    virtual Acad::ErrorStatus addCommand(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName,
                                         const ACHAR* cmdLocalName, Adesk::Int32 commandFlags,
                                         AcRxFunctionPtr functionAddr,
                                         AcEdUIContext* UIContext = nullptr, int fcode = -1,
                                         HINSTANCE hResourceHandle = nullptr,
                                         AcEdCommand** cmdPtrRet = nullptr) = 0;

    // Remove a command, or a group with all its commands. A group is removed with its last command.
    // A command that is running may remove itself and ends as usual. Return eInvalidInput for an
    // empty or null name and eKeyNotFound for an unknown command or group.
    virtual Acad::ErrorStatus removeCmd(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName) = 0;
    virtual Acad::ErrorStatus removeGroup(const ACHAR* groupName) = 0;

    // Finds a command by its local name, and with globalLookup set also by its global name
    // [borrowed]. Returns null when no command has the name. Every group is searched, the newest
    // first; allGroups has no effect.
    virtual AcEdCommand* lookupCmd(const ACHAR* cmdName, bool globalLookup = false,
                                   bool allGroups = false) const = 0;
};
