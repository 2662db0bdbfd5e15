// Documents and the reactors that are notified of changes to them. This host has one document at a
// time.
#pragma once

#include "acadstrc.h"
#include "adesk.h"
#include "rxobject.h"
#include "windows.h"

class AcDbDatabase;

namespace AcAp
{
// Tells how a document is locked. While a document is locked for write, no other reader or writer
// changes it. A document without a lock reports kNotLocked.
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
// address, so a module drops the data that it keeps for a document in documentToBeDestroyed.
class AcApDocument : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocument)

    // Returns the document's drawing [borrowed], good until the document is destroyed.
    virtual AcDbDatabase* database() const = 0;
    // Returns the absolute path of the document's file [borrowed], good until the drawing is saved
    // under another name. The text is empty while the document has no file.
    virtual const ACHAR* fileName() const = 0;
    // Returns the mode of the newest lock, or kNotLocked when the document has no lock.
    virtual AcAp::DocLockMode lockMode() const = 0;
};

// Is notified of what happens to documents. A module derives a class and overrides the functions
// that it needs; the others do nothing. The functions must let no exception out. A document or text
// that a function receives is [borrowed] and good until the function returns, unless its comment
// says otherwise.
class AcApDocManagerReactor : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocManagerReactor)

    // Called while a drawing is being opened: the document exists but is not current yet.
    virtual void documentCreateStarted(AcApDocument*) {}
    // Called when the drawing is open and its database is the working database. The document is
    // good until documentToBeDestroyed.
    virtual void documentCreated(AcApDocument*) {}
    // Called before the document is destroyed. This is the last call with its pointer.
    virtual void documentToBeDestroyed(AcApDocument*) {}
    // Called after the document with this file has been destroyed.
    virtual void documentDestroyed(const ACHAR*) {}
    // Called when a drawing could not be opened. This host never calls it.
    virtual void documentCreateCanceled(AcApDocument*) {}
    // Called when a lock is taken or released. The three modes are the mode of the document before
    // the change, the mode after it, and the mode of all its locks at the time of the call. The
    // text is the command's global name, or empty for a lock that a module takes. This host never
    // vetoes a change.
    virtual void documentLockModeWillChange(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                            AcAp::DocLockMode, const ACHAR*)
    {
    }
    virtual void documentLockModeChangeVetoed(AcApDocument*, const ACHAR*) {}
    virtual void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                         AcAp::DocLockMode, const ACHAR*)
    {
    }
    // Called when later calls begin to act on the document.
    virtual void documentBecameCurrent(AcApDocument*) {}
    // Called before the document gets the input, before it loses it, and when it has it.
    // documentCreated is followed by documentToBeActivated, documentBecameCurrent and
    // documentActivated, in this order.
    virtual void documentToBeActivated(AcApDocument*) {}
    virtual void documentToBeDeactivated(AcApDocument*) {}
    virtual void documentActivationModified(bool) {}  // this host never calls it
    virtual void documentActivated(AcApDocument*) {}
    virtual void documentTitleUpdated(AcApDocument*) {}  // this host never calls it
};

// The host's documents, and the current module resources.
class AcApDocManager : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocManager)

    // Return the document that calls act on and the document that has the input, which are the same
    // here [borrowed]. Return null while no drawing is open.
    virtual AcApDocument* curDocument() const = 0;
    virtual AcApDocument* mdiActiveDocument() const = 0;
    // Tells whether calls run in application context, that is, while no command works on one
    // document.
    virtual bool isApplicationContext() const = 0;

    // Make the module's resources current until they are popped; pairs nest. Both calls need an
    // open drawing. The run ends for a handle of no loaded module, for a pop without its push, and
    // for a push that a command leaves behind.
    virtual void pushResourceHandle(HINSTANCE hRes) = 0;
    virtual void popResourceHandle() = 0;

    // Add and remove a reactor [borrowed], which is notified of every document until it is removed.
    // The caller removes it before it destroys the reactor and before the module is unloaded; a
    // reactor of an unloaded module ends the run. The calls ignore a null reactor, one that was
    // added before, and one that was never added. A reactor may remove itself during a
    // notification.
    virtual void addReactor(AcApDocManagerReactor* pReactor) = 0;
    virtual void removeReactor(AcApDocManagerReactor* pReactor) = 0;

    // Lock and unlock the current document. Locks nest. Each lock needs its unlockDocument; an
    // unlock without its lock ends the run. No other reader or writer ever holds a conflicting lock
    // here, so the user is not asked: the local name and prompt have no effect. Return
    // eInvalidInput for any other document.
    virtual Acad::ErrorStatus lockDocument(AcApDocument* pDoc,
                                           AcAp::DocLockMode mode = AcAp::kWrite,
                                           const ACHAR* pGlobalCmdName = nullptr,
                                           const ACHAR* pLocalCmdName = nullptr,
                                           bool prompt = true) = 0;
    virtual Acad::ErrorStatus unlockDocument(AcApDocument* pDoc) = 0;
};

// Returns the host's one document manager [borrowed]. It exists before any module is loaded.
AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()
