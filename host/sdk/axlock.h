// Lock of a document for the length of a scope.
//
// Order of calls: make the lock, ask lockStatus, then change the drawing. Locks nest and go in the
// reverse order.
#pragma once

#include "acadstrc.h"
#include "dbid.h"

class AcApDocument;
class AcDbDatabase;

// Locks a document for write when it is made and unlocks it when it goes.
class AcAxDocLock
{
public:
    // kCurDocSwitch makes the locked document the current one until the lock goes; the one document
    // of this host always is.
    enum DocLockType
    {
        kNormal = 0,
        kCurDocSwitch = 1
    };

    // Locks the document that holds the object or the database; without either, and for a null one,
    // the current document.
    explicit AcAxDocLock(DocLockType type = kNormal);
    explicit AcAxDocLock(const AcDbObjectId& id, DocLockType type = kNormal);
    explicit AcAxDocLock(AcDbDatabase* database, DocLockType type = kNormal);
    ~AcAxDocLock();

    // eOk; eNoDatabase when no drawing is open or the open one does not hold the object: nothing
    // was locked then, and the destructor unlocks nothing.
    Acad::ErrorStatus lockStatus() const { return m_status; }

private:
    AcAxDocLock(const AcAxDocLock&);
    AcAxDocLock& operator=(const AcAxDocLock&);
    void lock(AcDbDatabase* database);

    AcApDocument* m_document;
    Acad::ErrorStatus m_status;
};
