// Symbol tables: blocks, layers, linetypes, text styles.
#pragma once

#include "dbmain.h"

// A named record of a symbol table. Letter case of names does not count.
class AcDbSymbolTableRecord : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbSymbolTableRecord)

    // Sets name to a copy of the record's name [read], which the caller owns and frees with
    // acutDelString. A text style for a shape file has an empty name. eOutOfMemory; name is null
    // then.
    Acad::ErrorStatus getName(ACHAR*& name) const;
    // Sets name to the record's own text [borrowed] [read], good while the drawing is open; eOk.
    Acad::ErrorStatus getName(const ACHAR*& name) const;

    struct Internals;  // the host's own

private:
    const wchar_t* m_name = L"";  // lives as long as the database
};

// Goes through the records of a table in the order of the table, as they were when the iterator was
// made. Order of calls: while not done: getRecordId or getRecord, step.
class AcDbSymbolTableIterator
{
public:
    // Goes to the first or the last record; with skipErased to the next one that is not erased.
    void start(bool atBeginning = true, bool skipErased = true);
    // Whether the iterator has left the table at either end.
    bool done() const;
    // Goes on by one record, again past erased ones with skipErased.
    void step(bool forward = true, bool skipErased = true);
    // Sets id to the record that the iterator is at. eInvalidIndex, and id as it was, once it is
    // done.
    Acad::ErrorStatus getRecordId(AcDbObjectId& id) const;

protected:
    // Opens the record; see AcDbTableIteratorOf::getRecord.
    Acad::ErrorStatus openRecord(AcDbObject*& record, AcDb::OpenMode mode, bool openErased) const;

private:
    friend class AcDbSymbolTable;
    AcDbObjectIdArray m_ids;  // as they stood when the iterator was made, in table order
    int m_at = 0;

    void skip(int direction, bool skipErased);
};

// A table of named records; it owns them.
class AcDbSymbolTable : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbSymbolTable)

    // An empty table; the host makes and fills it. Its records are the database's and stay.
    AcDbSymbolTable();
    ~AcDbSymbolTable();

    // Sets id to the record of that name, in any letter case, without opening it.
    // eInvalidInput for a null name, eKeyNotFound, eDeletedEntry for an erased record unless
    // getErasedRecord is set; id is null then.
    Acad::ErrorStatus getAt(const ACHAR* name, AcDbObjectId& id,
                            bool getErasedRecord = false) const;
    // Whether getAt finds the name.
    bool has(const ACHAR* name) const;

    struct Internals;  // the host's own

protected:
    // The work of AcDbTableOf::getAt and AcDbTableOf::newIterator [read].
    Acad::ErrorStatus openAt(const ACHAR* name, AcDbObject*& record, AcDb::OpenMode mode,
                             bool openErased) const;
    void fillIterator(AcDbSymbolTableIterator& iterator, bool atBeginning, bool skipErased) const;

private:
    Internals* m_internals;
};

// A block: model space, a sheet, or what an insert repeats.
class AcDbBlockTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockTableRecord)

    // Adds a new entity at the end of the block and sets id [write]. The entity is the database's
    // then [adopted], properties that were not set get the drawing's current ones, and it stays
    // open for write; the caller closes it and may no longer delete it. eNullObjectPointer,
    // eAlreadyInDb, eInvalidInput for an entity with a number that is not finite; id is null then,
    // and the entity stays its maker's.
    Acad::ErrorStatus appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity);
    Acad::ErrorStatus appendAcDbEntity(AcDbEntity* entity);
};

// A layer.
class AcDbLayerTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLayerTableRecord)

    // Frozen and off: its entities are not shown. Locked: they cannot be opened for write.
    bool isFrozen() const { return m_frozen; }
    bool isLocked() const { return m_locked; }
    bool isOff() const { return m_off; }
    // [write]. eInvalidLayer: the current layer cannot be frozen.
    Acad::ErrorStatus setIsFrozen(bool frozen);
    // [write]. Any layer can be locked and turned off.
    void setIsLocked(bool locked);
    void setIsOff(bool off);

    struct Internals;  // the host's own

private:
    bool m_frozen = false;
    bool m_locked = false;
    bool m_off = false;
};

// A linetype that the drawing has loaded. Continuous is always there.
class AcDbLinetypeTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLinetypeTableRecord)
};

// A text style, or a shape file, which is a text style without a name.
class AcDbTextStyleTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbTextStyleTableRecord)

    // Slant from the upright [rad].
    double obliquingAngle() const { return m_oblique; }
    // Width of the letters as a multiple of that of the font.
    double xScale() const { return m_xScale; }
    // Height of its texts in drawing units; 0 when each text has its own.
    double textSize() const { return m_textSize; }

    struct Internals;  // the host's own

private:
    double m_oblique = 0;
    double m_xScale = 1;
    double m_textSize = 0;
};

// An iterator over one kind of record.
template <class Record>
class AcDbTableIteratorOf : public AcDbSymbolTableIterator
{
public:
    // Opens the record that the iterator is at; the caller closes it [borrowed]. eInvalidIndex once
    // the iterator is done; else the statuses of acdbOpenAcDbObject. record is null unless eOk.
    Acad::ErrorStatus getRecord(Record*& record, AcDb::OpenMode mode = AcDb::kForRead,
                                bool openErased = false) const
    {
        AcDbObject* opened = nullptr;
        const Acad::ErrorStatus status = openRecord(opened, mode, openErased);
        record = static_cast<Record*>(opened);
        return status;
    }
};

// A table of one kind of record.
template <class Record>
class AcDbTableOf : public AcDbSymbolTable
{
public:
    using AcDbSymbolTable::getAt;
    // Opens the record of that name; the caller closes it [borrowed] [read]. eInvalidInput for a
    // null name, eKeyNotFound, eWasErased for an erased record unless openErasedRecord is set; else
    // the statuses of acdbOpenAcDbObject. record is null unless eOk.
    Acad::ErrorStatus getAt(const ACHAR* name, Record*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const
    {
        AcDbObject* opened = nullptr;
        const Acad::ErrorStatus status = openAt(name, opened, mode, openErasedRecord);
        record = static_cast<Record*>(opened);
        return status;
    }
    // Sets iterator to a new one at the first or the last record; eOk [read]. The caller deletes it
    // before the table is closed.
    Acad::ErrorStatus newIterator(AcDbTableIteratorOf<Record>*& iterator, bool atBeginning = true,
                                  bool skipErased = true) const
    {
        iterator = new AcDbTableIteratorOf<Record>();
        fillIterator(*iterator, atBeginning, skipErased);
        return Acad::eOk;
    }
};

// The host's names for these iterators.
typedef AcDbTableIteratorOf<AcDbTextStyleTableRecord> AcDbTextStyleTableIterator;
typedef AcDbTableIteratorOf<AcDbLayerTableRecord> AcDbLayerTableIterator;

// The tables of a drawing are this one and the three below. The database opens them.
class AcDbBlockTable : public AcDbTableOf<AcDbBlockTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockTable)
};

// See AcDbBlockTable.
class AcDbLayerTable : public AcDbTableOf<AcDbLayerTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLayerTable)
};

// See AcDbBlockTable.
class AcDbLinetypeTable : public AcDbTableOf<AcDbLinetypeTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLinetypeTable)
};

// See AcDbBlockTable.
class AcDbTextStyleTable : public AcDbTableOf<AcDbTextStyleTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbTextStyleTable)
};

// Ids of a database's tables by the class of table or record, for the smart pointers.
template <class T>
AcDbObjectId acdbTableIdFor(const AcDbDatabase* database);
