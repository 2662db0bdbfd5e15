// Documents, and who wants to hear of them. This host has one document at a time.
#pragma once

#include "acadstrc.h"
#include "adesk.h"
#include "rxobject.h"
#include "windows.h"

class AcDbDatabase;

namespace AcAp
{
// How a document is locked. While a document is locked for write nobody else changes it. kNotLocked
// is what a document without any lock tells.
enum DocLockMode
{
    kNone = 0x00,
    kAutoWrite = 0x01,
    kNotLocked = 0x02,
    kWrite = 0x04,
    kProtectedAutoWrite = 0x14,
    kRead = 0x20,
    kXWrite = 0x40
};
}  // namespace AcAp

// An open drawing with its editor. The document manager owns it. A later document may have the same
// address, so what a module keeps for a document goes in documentToBeDestroyed.
class AcApDocument : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocument)

    // Its drawing [borrowed], good until the document is destroyed.
    virtual AcDbDatabase* database() const = 0;
    // Absolute path of its file [borrowed], good until it is saved under another name; empty while
    // it has no file.
    virtual const ACHAR* fileName() const = 0;
    // The newest lock; kNotLocked without any.
    virtual AcAp::DocLockMode lockMode() const = 0;
};

// Hears what happens to documents. A module derives from it and overrides what it needs; the others
// do nothing. The functions must let no exception out. A document or text that a function is given
// is [borrowed] and good until the function returns, unless said otherwise.
class AcApDocManagerReactor : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocManagerReactor)

    // A drawing is being opened: the document is there, but it is not current yet.
    virtual void documentCreateStarted(AcApDocument*) {}
    // The drawing is open and its database the working one. The document stays until
    // documentToBeDestroyed.
    virtual void documentCreated(AcApDocument*) {}
    // The document goes now; this is the last call with its pointer.
    virtual void documentToBeDestroyed(AcApDocument*) {}
    // The document that had this file is gone.
    virtual void documentDestroyed(const ACHAR*) {}
    // A drawing could not be opened; this host never calls it.
    virtual void documentCreateCanceled(AcApDocument*) {}
    // A lock comes or goes. The modes are that of the document before the change, that after it,
    // and that of all its locks at the time of the call; the text is the command's global name,
    // empty for a lock that a module takes. This host never vetoes a change.
    virtual void documentLockModeWillChange(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                            AcAp::DocLockMode, const ACHAR*)
    {
    }
    virtual void documentLockModeChangeVetoed(AcApDocument*, const ACHAR*) {}
    virtual void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                         AcAp::DocLockMode, const ACHAR*)
    {
    }
    // Calls act on the document from now on.
    virtual void documentBecameCurrent(AcApDocument*) {}
    // The document gets the input, has it, or loses it. After documentCreated come
    // documentToBeActivated, documentBecameCurrent and documentActivated, in this order.
    virtual void documentToBeActivated(AcApDocument*) {}
    virtual void documentToBeDeactivated(AcApDocument*) {}
    virtual void documentActivationModified(bool) {}  // this host never calls it
    virtual void documentActivated(AcApDocument*) {}
    virtual void documentTitleUpdated(AcApDocument*) {}  // this host never calls it
};

// The host's documents and the module resources that are current.
class AcApDocManager : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocManager)

    // The document that calls act on and the one that has the input, here the same [borrowed]; null
    // while no drawing is open.
    virtual AcApDocument* curDocument() const = 0;
    virtual AcApDocument* mdiActiveDocument() const = 0;
    // True while no command runs that works on one document.
    virtual bool isApplicationContext() const = 0;

    // Makes the module's resources current until they are popped; pairs nest. Needs an open
    // drawing. A handle of no loaded module, a pop without its push, and a push that a command
    // leaves behind end the run.
    virtual void pushResourceHandle(HINSTANCE hRes) = 0;
    virtual void popResourceHandle() = 0;

    // A reactor is told of every document from now on until it is removed [borrowed]. The caller
    // removes it before it goes and before the module is unloaded; a reactor of a module that is
    // gone ends the run. A null reactor, one that was added before and one that was never added are
    // ignored. A reactor may remove itself while it is told of something.
    virtual void addReactor(AcApDocManagerReactor* pReactor) = 0;
    virtual void removeReactor(AcApDocManagerReactor* pReactor) = 0;

    // Locks the current document. Locks nest; each one needs its unlockDocument, and an unlock
    // without its lock ends the run. The lock of another reader or writer never stands in the way
    // here, so nobody is asked: the local name and prompt have no effect.
    // eInvalidInput for any other document.
    virtual Acad::ErrorStatus lockDocument(AcApDocument* pDoc,
                                           AcAp::DocLockMode mode = AcAp::kWrite,
                                           const ACHAR* pGlobalCmdName = nullptr,
                                           const ACHAR* pLocalCmdName = nullptr,
                                           bool prompt = true) = 0;
    virtual Acad::ErrorStatus unlockDocument(AcApDocument* pDoc) = 0;
};

// The host's one document manager [borrowed]; it is there before any module is loaded.
AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()
