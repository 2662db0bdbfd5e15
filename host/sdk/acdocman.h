// Documents, and who wants to hear of them.
#pragma once

#include "acadstrc.h"
#include "adesk.h"
#include "rxobject.h"
#include "windows.h"

class AcDbDatabase;

namespace AcAp
{
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

// An open drawing with its editor. The pointer may come back for another drawing later on.
class AcApDocument : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocument)

    virtual AcDbDatabase* database() const = 0;
    virtual const ACHAR* fileName() const = 0;
    virtual AcAp::DocLockMode lockMode() const = 0;
};

class AcApDocManagerReactor : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocManagerReactor)

    virtual void documentCreateStarted(AcApDocument*) {}
    virtual void documentCreated(AcApDocument*) {}
    virtual void documentToBeDestroyed(AcApDocument*) {}
    virtual void documentDestroyed(const ACHAR*) {}
    virtual void documentCreateCanceled(AcApDocument*) {}
    virtual void documentLockModeWillChange(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                            AcAp::DocLockMode, const ACHAR*)
    {
    }
    virtual void documentLockModeChangeVetoed(AcApDocument*, const ACHAR*) {}
    virtual void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                         AcAp::DocLockMode, const ACHAR*)
    {
    }
    virtual void documentBecameCurrent(AcApDocument*) {}
    virtual void documentToBeActivated(AcApDocument*) {}
    virtual void documentToBeDeactivated(AcApDocument*) {}
    virtual void documentActivationModified(bool) {}
    virtual void documentActivated(AcApDocument*) {}
    virtual void documentTitleUpdated(AcApDocument*) {}
};

class AcApDocManager : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocManager)

    // Null while no drawing is open.
    virtual AcApDocument* curDocument() const = 0;
    virtual AcApDocument* mdiActiveDocument() const = 0;
    virtual bool isApplicationContext() const = 0;

    // Makes the module's resources current until popped. Pairs nest.
    virtual void pushResourceHandle(HINSTANCE hRes) = 0;
    virtual void popResourceHandle() = 0;

    // A reactor is heard until it is removed; it stays the caller's.
    virtual void addReactor(AcApDocManagerReactor* pReactor) = 0;
    virtual void removeReactor(AcApDocManagerReactor* pReactor) = 0;

    // Locks nest; each one needs its unlockDocument.
    virtual Acad::ErrorStatus lockDocument(AcApDocument* pDoc,
                                           AcAp::DocLockMode mode = AcAp::kWrite,
                                           const ACHAR* pGlobalCmdName = nullptr,
                                           const ACHAR* pLocalCmdName = nullptr,
                                           bool prompt = true) = 0;
    virtual Acad::ErrorStatus unlockDocument(AcApDocument* pDoc) = 0;
};

AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()
