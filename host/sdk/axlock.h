// Lock of a document for the length of a scope.
#pragma once

#include "acadstrc.h"
#include "dbid.h"

class AcApDocument;
class AcDbDatabase;

class AcAxDocLock
{
public:
    enum DocLockType
    {
        kNormal = 0,
        kCurDocSwitch = 1
    };

    // Locks the current document, or the one that holds the object or database. kCurDocSwitch asks
    // for that document to become current, which the only document always is.
    explicit AcAxDocLock(DocLockType type = kNormal);
    explicit AcAxDocLock(const AcDbObjectId& id, DocLockType type = kNormal);
    explicit AcAxDocLock(AcDbDatabase* database, DocLockType type = kNormal);
    ~AcAxDocLock();

    // Anything but eOk: nothing was locked.
    Acad::ErrorStatus lockStatus() const { return m_status; }

private:
    AcAxDocLock(const AcAxDocLock&);
    AcAxDocLock& operator=(const AcAxDocLock&);
    void lock(AcDbDatabase* database);

    AcApDocument* m_document;
    Acad::ErrorStatus m_status;
};
