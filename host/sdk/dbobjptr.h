// Pointers that open an object in their constructor and close it in their destructor.
//
// Order of calls: create the pointer, ask openStatus, use the object. Code that uses the pointer
// must not close the object directly: the pointer closes it, at the latest in its destructor.
#pragma once

#include "dbapserv.h"
#include "dbmain.h"
#include "dbsymtb.h"

// The base of all these pointers. T is the class that the object must have.
template <class T>
class AcDbObjectPointerBase
{
public:
    // Returns eOk while the object is open, the reason why opening failed, or eNullObjectPointer
    // after close.
    Acad::ErrorStatus openStatus() const { return m_status; }
    // Return the open object [borrowed], or null unless openStatus is eOk.
    T* object() const { return m_object; }
    T* operator->() const { return m_object; }
    operator T*() const { return m_object; }

    // Closes the object before the destructor does. Returns what AcDbObject::close returns, or
    // eNullObjectPointer when no object is open.
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
    // The constructor opens nothing. The destructor closes an object that is still open.
    AcDbObjectPointerBase() : m_object(nullptr), m_status(Acad::eNullObjectPointer) {}
    ~AcDbObjectPointerBase() { close(); }

    // Opens the object, or records why opening failed. A constructor calls it once.
    void openById(AcDbObjectId id, AcDb::OpenMode mode, bool openErased, bool openOnLockedLayer)
    {
        AcDbObject* opened = nullptr;
        m_status = acdbOpenOfClass(opened, id, T::desc(), mode, openErased, openOnLockedLayer);
        m_object = static_cast<T*>(opened);
    }
    // Records why no object was opened.
    void fail(Acad::ErrorStatus status) { m_status = status; }

private:
    AcDbObjectPointerBase(const AcDbObjectPointerBase&);
    AcDbObjectPointerBase& operator=(const AcDbObjectPointerBase&);

    T* m_object;
    Acad::ErrorStatus m_status;
};

// Opens any object by its id. The statuses are those of acdbOpenAcDbObject. With openOnLockedLayer
// set, an entity on a locked layer is also opened for write.
template <class T>
class AcDbObjectPointer : public AcDbObjectPointerBase<T>
{
public:
    // Opens the object.
    AcDbObjectPointer(AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false,
                      bool openOnLockedLayer = false)
    {
        this->openById(id, mode, openErased, openOnLockedLayer);
    }
};

// Opens a symbol table by its id, or as a table of a database. The status is eNoDatabase for a null
// database, and otherwise one of acdbOpenAcDbObject.
template <class T>
class AcDbSymbolTablePointer : public AcDbObjectPointerBase<T>
{
public:
    // Opens the table.
    AcDbSymbolTablePointer(AcDbObjectId id, AcDb::OpenMode mode)
    {
        this->openById(id, mode, false, false);
    }
    // Opens the database's table of that class.
    AcDbSymbolTablePointer(AcDbDatabase* database, AcDb::OpenMode mode)
    {
        if (database == nullptr)
        {
            this->fail(Acad::eNoDatabase);
            return;
        }
        this->openById(acdbTableIdFor<T>(database), mode, false, false);
    }
};

// Opens a record of a symbol table by its id, or by its name in a database. The status is
// eNoDatabase for a null database, eInvalidInput for a null name, eKeyNotFound for an unknown name,
// eDeletedEntry for an erased record unless openErased is set, and otherwise one of
// acdbOpenAcDbObject.
template <class T>
class AcDbSymbolTableRecordPointer : public AcDbObjectPointerBase<T>
{
public:
    // Opens the record.
    AcDbSymbolTableRecordPointer(AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false)
    {
        this->openById(id, mode, openErased, false);
    }
    // Opens the record of that name, in any letter case, from the database's table of its class.
    AcDbSymbolTableRecordPointer(const ACHAR* name, AcDbDatabase* database, AcDb::OpenMode mode,
                                 bool openErased = false)
    {
        if (database == nullptr)
        {
            this->fail(Acad::eNoDatabase);
            return;
        }
        openByName(name, acdbTableIdFor<T>(database), mode, openErased);
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
