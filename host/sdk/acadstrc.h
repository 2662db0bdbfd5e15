// The statuses of the host's calls: those that some call here returns or that a caller names.
#pragma once

namespace Acad
{
// eOk means success. A call that returns any other status leaves the drawing unchanged unless its
// comment says otherwise. The numbers are part of the interface: callers compare and print them.
enum ErrorStatus
{
    eOk = 0,
    eNotImplementedYet = 1,         // this host does not support the operation
    eNotApplicable = 2,             // the call has no meaning in the object's present state
    eInvalidInput = 3,              // an argument is null, out of range or not finite
    eOutOfMemory = 6,               // there is no memory for the result
    eInvalidOpenState = 8,          // never returned here
    eNullObjectPointer = 15,        // the object is null, or its smart pointer could not open it
    eNullObjectId = 16,             // the id is null
    eKeyNotFound = 21,              // no entry has that name
    eDuplicateKey = 22,             // another entry has that name
    eInvalidIndex = 23,             // the iterator is past its end
    eAlreadyInDb = 26,              // the object belongs to a database already
    eDeletedEntry = 28,             // the entry of that name is erased
    eInvalidKey = 33,               // the name is empty
    eWrongObjectType = 34,          // the id names another kind of object
    eNotOpenForRead = 44,           // never returned here: such a call ends the run
    eNotOpenForWrite = 45,          // the entity was closed already after it was appended
    eNotThatKindOfClass = 46,       // the object is not of the requested class
    eInvalidLayer = 50,             // the current layer cannot be frozen
    eWasErased = 80,                // the object is erased
    ePermanentlyErased = 81,        // the object was made and erased by the same command
    eWasOpenForRead = 82,           // the object has a reader, so it cannot be opened for write
    eWasOpenForWrite = 83,          // the object has a writer, so it cannot be opened at all
    eWasOpenForUndo = 84,           // never returned here
    eWasNotifying = 85,             // never returned here
    eWasOpenForNotify = 86,         // never returned here
    eOnLockedLayer = 87,            // an entity on a locked layer cannot be opened for write
    eMustOpenThruOwner = 88,        // never returned here
    eSubentitiesStillOpen = 89,     // never returned here
    eAtMaxReaders = 90,             // 256 readers have the object open
    eIsWriteProtected = 91,         // never returned here
    eIsXRefObject = 92,             // never returned here
    eNotAnEntity = 93,              // the id names an object that is not drawn
    eHadMultipleReaders = 94,       // another reader has the object open, so it cannot be upgraded
    eCannotBeErasedByCaller = 105,  // never returned here; the module returns it
    eNoDatabase = 124,  // no drawing is open, or the open drawing does not hold the object
    eCannotScaleNonUniformly = 136,  // the matrix does not keep angles
    eNotInDatabase = 137,            // the object does not belong to a database yet
    eAlreadyInGroup = 260            // the entity is a member of the group already
};
}  // namespace Acad
