// The symbol tables: blocks, layers, linetypes and text styles.
#pragma once

#include "dbmain.h"

// A named record of a symbol table. Names are compared without regard to letter case.
class AcDbSymbolTableRecord : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbSymbolTableRecord)

    // Sets name to a copy of the record's name [read], which the caller owns and frees with
    // acutDelString. The name of a text style that is a shape file is empty. Returns eOutOfMemory
    // when the copy cannot be made; name is null then.
    Acad::ErrorStatus getName(ACHAR*& name) const;
    // Sets name to the record's own text [borrowed] [read], which is good while the drawing is
    // open. Returns eOk.
    Acad::ErrorStatus getName(const ACHAR*& name) const;

    struct Internals;  // the host's own

private:
    const wchar_t* m_name = L"";  // good as long as the database lives
};

// Iterates over the records that a table had when the iterator was created, in the order of the
// table. Order of calls: until done returns true, call getRecordId or getRecord, then step.
class AcDbSymbolTableIterator
{
public:
    // Goes to the first or the last record. With skipErased set it goes on to the next record that
    // is not erased.
    void start(bool atBeginning = true, bool skipErased = true);
    // Tells whether the iterator has left the table at either end.
    bool done() const;
    // Moves by one record. With skipErased set it also passes over erased records.
    void step(bool forward = true, bool skipErased = true);
    // Sets id to the record at the iterator's position. Returns eInvalidIndex when the iterator is
    // done; id is unchanged then.
    Acad::ErrorStatus getRecordId(AcDbObjectId& id) const;

protected:
    // Opens the record as AcDbTableIteratorOf::getRecord describes.
    Acad::ErrorStatus openRecord(AcDbObject*& record, AcDb::OpenMode mode, bool openErased) const;

private:
    friend class AcDbSymbolTable;
    AcDbObjectIdArray m_ids;  // the records when the iterator was created, in table order
    int m_at = 0;

    void skip(int direction, bool skipErased);
};

// A table of named records, which the table owns.
class AcDbSymbolTable : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbSymbolTable)

    // The constructor creates an empty table, which the host fills. The destructor leaves the
    // records alone: the database destroys them.
    AcDbSymbolTable();
    ~AcDbSymbolTable();

    // Sets id to the record with that name, in any letter case, without opening it. Returns
    // eInvalidInput for a null name, eKeyNotFound for an unknown one, and eDeletedEntry for an
    // erased record unless getErasedRecord is set; id is null then.
    Acad::ErrorStatus getAt(const ACHAR* name, AcDbObjectId& id,
                            bool getErasedRecord = false) const;
    // Tells whether getAt finds the name.
    bool has(const ACHAR* name) const;

    struct Internals;  // the host's own

protected:
    // Do the work of AcDbTableOf::getAt and AcDbTableOf::newIterator [read].
    Acad::ErrorStatus openAt(const ACHAR* name, AcDbObject*& record, AcDb::OpenMode mode,
                             bool openErased) const;
    void fillIterator(AcDbSymbolTableIterator& iterator, bool atBeginning, bool skipErased) const;

private:
    Internals* m_internals;
};

// A block: model space, a sheet, or the entities that an insert repeats.
class AcDbBlockTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockTableRecord)

    // Add a new entity at the end of the block and set id [write]. The database takes the entity
    // over [adopted]. The entity gets the drawing's current value for each property that was not
    // set. It stays open for write; the caller closes it and may no longer delete it. Returns
    // eNullObjectPointer, eAlreadyInDb, or eInvalidInput for an entity with a number that is not
    // finite; id is null then, and the entity still belongs to its creator.
    Acad::ErrorStatus appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity);
    Acad::ErrorStatus appendAcDbEntity(AcDbEntity* entity);
};

// A layer.
class AcDbLayerTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLayerTableRecord)

    // Tell whether the layer is frozen, locked or off. Entities on a frozen layer or a layer that
    // is off are not shown. Entities on a locked layer cannot be opened for write.
    bool isFrozen() const { return m_frozen; }
    bool isLocked() const { return m_locked; }
    bool isOff() const { return m_off; }
    // Freezes or thaws the layer [write]. Returns eInvalidLayer for the current layer, which cannot
    // be frozen.
    Acad::ErrorStatus setIsFrozen(bool frozen);
    // Lock the layer or turn it off, or the reverse [write]. Every layer accepts this.
    void setIsLocked(bool locked);
    void setIsOff(bool off);

    struct Internals;  // the host's own

private:
    bool m_frozen = false;
    bool m_locked = false;
    bool m_off = false;
};

// A linetype that the drawing has loaded. The linetype Continuous is always loaded.
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

    // Returns the slant from the upright [rad].
    double obliquingAngle() const { return m_oblique; }
    // Returns the width of the letters as a multiple of their width in the font.
    double xScale() const { return m_xScale; }
    // Returns the height of texts in this style in drawing units, or 0 when each text has its own
    // height.
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
    // Opens the record at the iterator's position; the caller closes it [borrowed]. Returns
    // eInvalidIndex when the iterator is done, and otherwise a status of acdbOpenAcDbObject. record
    // is null unless the status is eOk.
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
    // Opens the record with that name; the caller closes it [borrowed] [read]. Returns
    // eInvalidInput for a null name, eKeyNotFound for an unknown one, eWasErased for an erased
    // record unless openErasedRecord is set, and otherwise a status of acdbOpenAcDbObject. record
    // is null unless the status is eOk.
    Acad::ErrorStatus getAt(const ACHAR* name, Record*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const
    {
        AcDbObject* opened = nullptr;
        const Acad::ErrorStatus status = openAt(name, opened, mode, openErasedRecord);
        record = static_cast<Record*>(opened);
        return status;
    }
    // Sets iterator to a new one at the first or the last record [read]. Returns eOk. The caller
    // deletes the iterator before it closes the table.
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

// The table of blocks. The database opens this table and the three below.
class AcDbBlockTable : public AcDbTableOf<AcDbBlockTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockTable)
};

// A table that the database opens.
class AcDbLayerTable : public AcDbTableOf<AcDbLayerTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLayerTable)
};

// A table that the database opens.
class AcDbLinetypeTable : public AcDbTableOf<AcDbLinetypeTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLinetypeTable)
};

// A table that the database opens.
class AcDbTextStyleTable : public AcDbTableOf<AcDbTextStyleTableRecord>
{
public:
    ACRX_DECLARE_MEMBERS(AcDbTextStyleTable)
};

// Returns the id of a database's table by the class of the table or of its record. The smart
// pointers call it.
template <class T>
AcDbObjectId acdbTableIdFor(const AcDbDatabase* database);
