// Smart pointers that open in their constructor and close in their destructor.
#pragma once

#include "dbapserv.h"
#include "dbmain.h"
#include "dbsymtb.h"

template <class T>
class AcDbObjectPointerBase
{
public:
    Acad::ErrorStatus openStatus() const { return m_status; }
    T* object() const { return m_object; }
    T* operator->() const { return m_object; }
    operator T*() const { return m_object; }

    Acad::ErrorStatus close()
    {
        if (m_object == nullptr)
        {
            return Acad::eNullObjectPointer;
        }
        T* object = m_object;
        m_object = nullptr;
        m_status = Acad::eNullObjectPointer;
        return object->close();
    }

protected:
    AcDbObjectPointerBase() : m_object(nullptr), m_status(Acad::eNullObjectPointer) {}
    ~AcDbObjectPointerBase() { close(); }

    void openById(AcDbObjectId id, AcDb::OpenMode mode, bool openErased, bool openOnLockedLayer)
    {
        AcDbObject* opened = nullptr;
        m_status = host::openObject(opened, id, T::desc(), mode, openErased, openOnLockedLayer);
        m_object = static_cast<T*>(opened);
    }
    void fail(Acad::ErrorStatus status) { m_status = status; }

private:
    AcDbObjectPointerBase(const AcDbObjectPointerBase&);
    AcDbObjectPointerBase& operator=(const AcDbObjectPointerBase&);

    T* m_object;
    Acad::ErrorStatus m_status;
};

template <class T>
class AcDbObjectPointer : public AcDbObjectPointerBase<T>
{
public:
    AcDbObjectPointer(AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false,
                      bool openOnLockedLayer = false)
    {
        this->openById(id, mode, openErased, openOnLockedLayer);
    }
};

template <class T>
class AcDbSymbolTablePointer : public AcDbObjectPointerBase<T>
{
public:
    AcDbSymbolTablePointer(AcDbObjectId id, AcDb::OpenMode mode)
    {
        this->openById(id, mode, false, false);
    }
    AcDbSymbolTablePointer(AcDbDatabase* database, AcDb::OpenMode mode)
    {
        if (database == nullptr)
        {
            this->fail(Acad::eNoDatabase);
            return;
        }
        this->openById(host::tableIdFor<T>(database), mode, false, false);
    }
};

template <class T>
class AcDbSymbolTableRecordPointer : public AcDbObjectPointerBase<T>
{
public:
    AcDbSymbolTableRecordPointer(AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false)
    {
        this->openById(id, mode, openErased, false);
    }
    AcDbSymbolTableRecordPointer(const ACHAR* name, AcDbDatabase* database, AcDb::OpenMode mode,
                                 bool openErased = false)
    {
        if (database == nullptr)
        {
            this->fail(Acad::eNoDatabase);
            return;
        }
        openByName(name, host::tableIdFor<T>(database), mode, openErased);
    }

private:
    void openByName(const ACHAR* name, AcDbObjectId tableId, AcDb::OpenMode mode, bool openErased)
    {
        AcDbSymbolTable* table = nullptr;
        Acad::ErrorStatus status = acdbOpenObject(table, tableId, AcDb::kForRead);
        if (status != Acad::eOk)
        {
            this->fail(status);
            return;
        }
        AcDbObjectId id;
        status = table->getAt(name, id, openErased);
        table->close();
        if (status != Acad::eOk)
        {
            this->fail(status);
            return;
        }
        this->openById(id, mode, openErased, false);
    }
};
