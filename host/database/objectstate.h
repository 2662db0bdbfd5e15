// How an object stands: whose it is, who has it open, whether it has changed.
#pragma once

#include "dbmain.h"

// An object is open for write by one caller, open for read by at most 256, or closed. A new object
// is open for write and in no drawing; it joins one drawing once and never leaves it.
struct AcDbObject::Internals
{
    // The object is in a drawing from now on, and open for write.
    static void joinOpen(AcDbObject& object, AcDbStub* stub, AcDbStub* owner);
    // The same for an object that the drawing has read: it is closed.
    static void joinClosed(AcDbObject& object, AcDbStub* stub, AcDbStub* owner);
    // Deletes an object of a drawing, which nobody else may do.
    static void destroy(AcDbObject* object);

    // eNotImplementedYet, eWasOpenForWrite, eWasOpenForRead, eAtMaxReaders. Layers are not asked.
    static Acad::ErrorStatus mayOpen(const AcDbObject& object, AcDb::OpenMode mode);
    // Only after mayOpen. True when the object was closed before.
    static bool open(AcDbObject& object, AcDb::OpenMode mode);
    // Closes the object for all its readers.
    static void closeForAll(AcDbObject& object);

    // The close that follows the next one is answered with a status instead of a breach.
    static void forgiveClose(AcDbObject& object) { object.m_forgiveClose = true; }
    // The host has refused an upgrade or an erase: the object may be left open.
    static void noteRefusal(AcDbObject& object) { object.m_refused = true; }
    static bool wasRefused(const AcDbObject& object) { return object.m_refused; }

    static void noteChange(const AcDbObject& object) { object.m_changed = true; }
    static void noteUnchanged(const AcDbObject& object) { object.m_changed = false; }
    static bool hasChanged(const AcDbObject& object) { return object.m_changed; }
};

namespace host
{
using ObjectState = AcDbObject::Internals;
}  // namespace host
