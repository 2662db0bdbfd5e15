// The lock of a document for the length of a scope.
//
// Order of calls: create the lock, ask lockStatus, then change the drawing. Locks nest and are
// released in reverse order.
#pragma once

#include "acadstrc.h"
#include "dbid.h"

class AcApDocument;
class AcDbDatabase;

// Locks a document for write in its constructor and unlocks it in its destructor.
class AcAxDocLock
{
public:
    // kCurDocSwitch makes the locked document the current one as long as the lock lives; the only
    // document of this host always is current.
    enum DocLockType
    {
        kNormal = 0,
        kCurDocSwitch = 1
    };

    // Lock the document that holds the object or the database. Without either, or for a null one,
    // they lock the current document.
    explicit AcAxDocLock(DocLockType type = kNormal);
    explicit AcAxDocLock(const AcDbObjectId& id, DocLockType type = kNormal);
    explicit AcAxDocLock(AcDbDatabase* database, DocLockType type = kNormal);
    ~AcAxDocLock();

    // Returns eOk, or eNoDatabase when no drawing is open or the open one does not hold the object.
    // In that case no document was locked, and the destructor unlocks none.
    Acad::ErrorStatus lockStatus() const { return m_status; }

private:
    AcAxDocLock(const AcAxDocLock&);
    AcAxDocLock& operator=(const AcAxDocLock&);
    void lock(AcDbDatabase* database);

    AcApDocument* m_document;
    Acad::ErrorStatus m_status;
};
