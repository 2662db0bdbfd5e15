// Statuses of the host's calls. Only those that some call here gives or that a caller names.
#pragma once

namespace Acad
{
// eOk is success. A call that returns any other status has left the drawing as it was unless its
// own comment says otherwise. The numbers are part of the interface: callers compare with them and
// print them.
enum ErrorStatus
{
    eOk = 0,
    eNotImplementedYet = 1,    // this host does not know how to do it
    eNotApplicable = 2,        // the object is in a state in which the call means nothing
    eInvalidInput = 3,         // an argument is null, out of range or not finite
    eOutOfMemory = 6,          // there is no memory for the result
    eInvalidOpenState = 8,     // never given here
    eNullObjectPointer = 15,   // the object was not given, or its pointer object could not open it
    eNullObjectId = 16,        // the id is null
    eKeyNotFound = 21,         // no entry has that name
    eDuplicateKey = 22,        // another entry has that name
    eInvalidIndex = 23,        // the iterator is past its end
    eAlreadyInDb = 26,         // the object belongs to a database already
    eDeletedEntry = 28,        // the entry of that name is erased
    eInvalidKey = 33,          // the name is empty
    eWrongObjectType = 34,     // the id is of another kind of object
    eNotOpenForRead = 44,      // never given here: such a call ends the run
    eNotOpenForWrite = 45,     // the entity was closed already after its append
    eNotThatKindOfClass = 46,  // the object is not of the class that was asked for
    eInvalidLayer = 50,        // the current layer cannot be frozen
    eWasErased = 80,           // the object is erased
    ePermanentlyErased = 81,   // never given here
    eWasOpenForRead = 82,      // the object has a reader, so it cannot be opened for write
    eWasOpenForWrite = 83,     // the object has a writer, so it cannot be opened at all
    eWasOpenForUndo = 84,      // never given here
    eWasNotifying = 85,        // never given here
    eWasOpenForNotify = 86,    // never given here
    eOnLockedLayer = 87,       // an entity on a locked layer cannot be opened for write
    eMustOpenThruOwner = 88,   // never given here
    eSubentitiesStillOpen = 89,      // never given here
    eAtMaxReaders = 90,              // 256 readers have the object open
    eIsWriteProtected = 91,          // never given here
    eIsXRefObject = 92,              // never given here
    eNotAnEntity = 93,               // the id is of an object that is not drawn
    eHadMultipleReaders = 94,        // another reader has the object open, so it cannot be upgraded
    eCannotBeErasedByCaller = 105,   // never given here; the module answers with it
    eNoDatabase = 124,               // no drawing is open, or the drawing does not hold the object
    eCannotScaleNonUniformly = 136,  // the matrix does not keep angles
    eNotInDatabase = 137,            // the object does not belong to a database yet
    eAlreadyInGroup = 260            // the entity is a member of the group already
};
}  // namespace Acad
