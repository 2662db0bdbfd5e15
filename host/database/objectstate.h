// The state of an object: its drawing and owner, who has it open, and whether it has changed.
#pragma once

#include "dbmain.h"

// An object is open for write by one caller, open for read by at most 256 callers, or closed. A new
// object is open for write and belongs to no drawing. It joins one drawing once and never leaves
// it.
struct AcDbObject::Internals
{
    // Makes the object a part of a drawing. It is open for write.
    static void joinOpen(AcDbObject& object, AcDbStub* stub, AcDbStub* owner);
    // Makes an object that was read from a file a part of the drawing. It is closed.
    static void joinClosed(AcDbObject& object, AcDbStub* stub, AcDbStub* owner);
    // Deletes an object of a drawing. No other code may do so.
    static void destroy(AcDbObject* object);

    static AcDbStub* stub(const AcDbObject& object) { return object.m_stub; }
    static AcDbStub* owner(const AcDbObject& object) { return object.m_owner; }

    // Returns eOk, eNotImplementedYet, eWasOpenForWrite, eWasOpenForRead or eAtMaxReaders. Does not
    // check whether the layer is locked.
    static Acad::ErrorStatus mayOpen(const AcDbObject& object, AcDb::OpenMode mode);
    // Opens the object. mayOpen must have returned eOk. Returns true if the object was closed
    // before.
    static bool open(AcDbObject& object, AcDb::OpenMode mode);
    // Closes the object for all its readers.
    static void closeForAll(AcDbObject& object);

    // Makes the close after the next one return a status instead of ending the run.
    static void forgiveClose(AcDbObject& object) { object.m_forgiveClose = true; }
    // Records that the host has refused an upgrade or an erase, so the module may leave the object
    // open.
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
