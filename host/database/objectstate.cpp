#include "host/database/objectstate.h"

void AcDbObject::Internals::joinOpen(AcDbObject& object, AcDbStub* stub, AcDbStub* owner)
{
    object.m_stub = stub;
    object.m_owner = owner;
    object.m_forWrite = true;
}

void AcDbObject::Internals::joinClosed(AcDbObject& object, AcDbStub* stub, AcDbStub* owner)
{
    object.m_stub = stub;
    object.m_owner = owner;
    object.m_forWrite = false;
}

void AcDbObject::Internals::destroy(AcDbObject* object)
{
    if (object != nullptr)
    {
        object->m_released = true;
        delete object;
    }
}

Acad::ErrorStatus AcDbObject::Internals::mayOpen(const AcDbObject& object, AcDb::OpenMode mode)
{
    if (mode == AcDb::kForNotify)
    {
        return Acad::eNotImplementedYet;
    }
    if (object.m_forWrite)
    {
        return Acad::eWasOpenForWrite;
    }
    if (mode == AcDb::kForRead)
    {
        return object.m_readers >= 256 ? Acad::eAtMaxReaders : Acad::eOk;
    }
    return object.m_readers > 0 ? Acad::eWasOpenForRead : Acad::eOk;
}

bool AcDbObject::Internals::open(AcDbObject& object, AcDb::OpenMode mode)
{
    const bool wasClosed = !object.isReadEnabled();
    object.m_forgiveClose = false;
    if (mode == AcDb::kForWrite)
    {
        object.m_forWrite = true;
    }
    else
    {
        ++object.m_readers;
    }
    return wasClosed;
}

void AcDbObject::Internals::closeForAll(AcDbObject& object)
{
    object.m_readers = 1;
    object.close();
}
