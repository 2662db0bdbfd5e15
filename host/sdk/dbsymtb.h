// Symbol tables: blocks, layers, linetypes, text styles.
#pragma once

#include "dbmain.h"

// A named record. Names compare without regard to letter case.
class AcDbSymbolTableRecord : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbSymbolTableRecord)

    // A copy for the caller, who frees it with acutDelBuffer or acutDelString.
    Acad::ErrorStatus getName(ACHAR*& name) const;
    // The record's own text, good while it is open.
    Acad::ErrorStatus getName(const ACHAR*& name) const;

private:
    friend struct host::ObjectAccess;
    const wchar_t* m_name = L"";  // lives as long as the database
};

class AcDbSymbolTableIterator
{
public:
    void start(bool atBeginning = true, bool skipErased = true);
    bool done() const;
    void step(bool forward = true, bool skipErased = true);
    Acad::ErrorStatus getRecordId(AcDbObjectId& id) const;

protected:
    Acad::ErrorStatus openRecord(AcDbObject*& record, AcDb::OpenMode mode, bool openErased) const;

private:
    friend class AcDbSymbolTable;
    AcDbObjectIdArray m_ids;  // as they stood when the iterator was made, in table order
    int m_at = 0;

    void skip(int direction, bool skipErased);
};

class AcDbSymbolTable : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbSymbolTable)

    struct Names;  // the host's own

    AcDbSymbolTable();
    ~AcDbSymbolTable();

    // eKeyNotFound, eDeletedEntry; the id is null then.
    Acad::ErrorStatus getAt(const ACHAR* name, AcDbObjectId& id,
                            bool getErasedRecord = false) const;
    bool has(const ACHAR* name) const;

protected:
    Acad::ErrorStatus openAt(const ACHAR* name, AcDbObject*& record, AcDb::OpenMode mode,
                             bool openErased) const;
    void fillIterator(AcDbSymbolTableIterator& iterator, bool atBeginning, bool skipErased) const;

private:
    friend struct host::ObjectAccess;
    Names* m_names;
};

class AcDbBlockTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockTableRecord)

    // Needs write. On success the entity is the database's, has an id and is open for write; on
    // failure it stays its maker's. eAlreadyInDb.
    Acad::ErrorStatus appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity);
    Acad::ErrorStatus appendAcDbEntity(AcDbEntity* entity);
};

class AcDbLayerTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLayerTableRecord)

    bool isFrozen() const { return m_frozen; }
    bool isLocked() const { return m_locked; }
    bool isOff() const { return m_off; }
    Acad::ErrorStatus setIsFrozen(bool frozen);  // eInvalidLayer: the current one cannot be frozen
    void setIsLocked(bool locked);
    void setIsOff(bool off);

private:
    friend struct host::ObjectAccess;
    bool m_frozen = false;
    bool m_locked = false;
    bool m_off = false;
};

class AcDbLinetypeTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLinetypeTableRecord)
};

class AcDbTextStyleTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbTextStyleTableRecord)

    double obliquingAngle() const { return m_oblique; }  // radians
    double xScale() const { return m_xScale; }
    double textSize() const { return m_textSize; }  // 0 when not fixed

private:
    friend struct host::ObjectAccess;
    double m_oblique = 0;
    double m_xScale = 1;
    double m_textSize = 0;
};

// What every table offers for its own kind of record.
template <class Record>
class AcDbTableIteratorOf : public AcDbSymbolTableIterator
{
public:
    Acad::ErrorStatus getRecord(Record*& record, AcDb::OpenMode mode = AcDb::kForRead,
                                bool openErased = false) const
    {
        AcDbObject* opened = nullptr;
        const Acad::ErrorStatus status = openRecord(opened, mode, openErased);
        record = static_cast<Record*>(opened);
        return status;
    }
};

template <class Record>
class AcDbTableOf : public AcDbSymbolTable
{
public:
    using AcDbSymbolTable::getAt;
    // Opens the record. eWasErased and a null pointer for an erased one.
    Acad::ErrorStatus getAt(const ACHAR* name, Record*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const
    {
        AcDbObject* opened = nullptr;
        const Acad::ErrorStatus status = openAt(name, opened, mode, openErasedRecord);
        record = static_cast<Record*>(opened);
        return status;
    }
    // The caller deletes the iterator before the table is closed.
    Acad::ErrorStatus newIterator(AcDbTableIteratorOf<Record>*& iterator, bool atBeginning = true,
                                  bool skipErased = true) const
    {
        iterator = new AcDbTableIteratorOf<Record>();
        fillIterator(*iterator, atBeginning, skipErased);
        return Acad::eOk;
    }
};

typedef AcDbTableIteratorOf<AcDbTextStyleTableRecord> AcDbTextStyleTableIterator;
typedef AcDbTableIteratorOf<AcDbLayerTableRecord> AcDbLayerTableIterator;

class AcDbBlockTable : public AcDbTableOf<AcDbBlockTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockTable)
};

class AcDbLayerTable : public AcDbTableOf<AcDbLayerTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLayerTable)
};

class AcDbLinetypeTable : public AcDbTableOf<AcDbLinetypeTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLinetypeTable)
};

class AcDbTextStyleTable : public AcDbTableOf<AcDbTextStyleTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbTextStyleTable)
};

namespace host
{
// Ids of a database's tables by the class of table or record, for the smart pointers.
template <class T>
AcDbObjectId tableIdFor(const AcDbDatabase* database);
}  // namespace host
