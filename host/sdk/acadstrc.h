// Statuses of the host's calls. Only those that some call here gives or that a caller names.
#pragma once

namespace Acad
{
enum ErrorStatus
{
    eOk = 0,
    eNotImplementedYet = 1,
    eNotApplicable = 2,
    eInvalidInput = 3,
    eOutOfMemory = 6,
    eInvalidOpenState = 8,
    eNullObjectPointer = 15,
    eNullObjectId = 16,
    eKeyNotFound = 21,
    eDuplicateKey = 22,
    eInvalidIndex = 23,
    eAlreadyInDb = 26,
    eDeletedEntry = 28,
    eInvalidKey = 33,
    eWrongObjectType = 34,
    eNotOpenForRead = 44,
    eNotOpenForWrite = 45,
    eNotThatKindOfClass = 46,
    eInvalidLayer = 50,
    eWasErased = 80,
    ePermanentlyErased = 81,
    eWasOpenForRead = 82,
    eWasOpenForWrite = 83,
    eWasOpenForUndo = 84,
    eWasNotifying = 85,
    eWasOpenForNotify = 86,
    eOnLockedLayer = 87,
    eMustOpenThruOwner = 88,
    eSubentitiesStillOpen = 89,
    eAtMaxReaders = 90,
    eIsWriteProtected = 91,
    eIsXRefObject = 92,
    eNotAnEntity = 93,
    eHadMultipleReaders = 94,
    eCannotBeErasedByCaller = 105,
    eNoDatabase = 124,
    eCannotScaleNonUniformly = 136,
    eNotInDatabase = 137,
    eAlreadyInGroup = 260
};
}  // namespace Acad
