// The drawing database, its objects and entities, and the calls that open them.
#pragma once

#include <cstddef>

#include "acdb.h"
#include "dbid.h"
#include "dbidar.h"
#include "gemat3d.h"
#include "gepnt3d.h"
#include "gepnt3da.h"
#include "gevec3d.h"
#include "rxobject.h"

class AcDbBlockTable;
class AcDbDictionary;
class AcDbLayerTable;
class AcDbLinetypeTable;
class AcDbTextStyleTable;

// A drawing. The database owns every object in it. Every pointer and id that it returns is
// [borrowed] and good until the drawing is closed. A module does not create a database: it gets one
// from the document or from the host.
class AcDbDatabase
{
public:
    // Creates a drawing without tables. The host fills it from a file or from the empty drawing.
    AcDbDatabase();
    // Destroys every object. If this is the working database, no database is current afterwards.
    ~AcDbDatabase();

    // Open a table or the group dictionary. The caller closes it. The statuses are those of
    // acdbOpenAcDbObject; the pointer is null unless the status is eOk.
    Acad::ErrorStatus getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getLinetypeTable(AcDbLinetypeTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getTextStyleTable(AcDbTextStyleTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getGroupDictionary(AcDbDictionary*& dictionary, AcDb::OpenMode mode);

    // Return the ids of the tables, or the null id in a drawing without tables.
    AcDbObjectId blockTableId() const;
    AcDbObjectId layerTableId() const;
    AcDbObjectId linetypeTableId() const;
    AcDbObjectId textStyleTableId() const;

    // Return what new entities get: the current layer, text style and linetype.
    AcDbObjectId clayer() const;
    AcDbObjectId textstyle() const;
    AcDbObjectId celtype() const;

    struct Internals;  // the host's own

private:
    AcDbDatabase(const AcDbDatabase&);
    AcDbDatabase& operator=(const AcDbDatabase&);

    Internals* m_internals;
};

// The memory of every object that a drawing may hold. The module creates such an object with `new`,
// and the host or the module deletes it, so both must use one heap: the host's.
class AcHeapOperators
{
public:
    // Returns memory for an object of that many bytes. Throws std::bad_alloc when there is none.
    static void* operator new(std::size_t size);
    // Frees memory that operator new returned for the same number of bytes. memory may be null.
    static void operator delete(void* memory, std::size_t size);
};

// An object that belongs to a database or will be added to one.
//
// A new object counts as open for write and belongs to its creator, who may delete it. After an
// object joins a database, the database owns it. A caller may only open and close it; deleting it
// ends the run. A caller that opens an object closes it before the command ends; an object that is
// left open ends the run.
//
// A call tagged [read] needs the object open, and one tagged [write] needs it open for write. Such
// a call ends the run when the object is closed or open in the wrong mode.
class AcDbObject : public AcRxObject, public AcHeapOperators
{
public:
    ACRX_DECLARE_MEMBERS(AcDbObject)

    AcDbObject();           // creates an object that is open for write and in no database
    virtual ~AcDbObject();  // ends the run if the object belongs to a database

    // Returns the object's id, or the null id while it is in no database. The call is also allowed
    // after close, as long as nothing else has been opened since.
    AcDbObjectId objectId() const;
    // Returns the block, table, dictionary or polyline that holds the object, or the null id while
    // the object is in no database.
    AcDbObjectId ownerId() const;
    // Returns the drawing that holds the object [borrowed], or null while the object is in no
    // database.
    AcDbDatabase* database() const;
    // Tells whether the object is erased. An object in no database is never erased.
    bool isErased() const;
    // Tell whether the object is open, and whether it is open for write.
    bool isReadEnabled() const;
    bool isWriteEnabled() const;

    // Turns the only reader into the writer [read]; a single close then closes the object. Returns
    // eWasOpenForWrite, eHadMultipleReaders or eOnLockedLayer when it cannot; nothing has changed
    // then, and the readers stay.
    Acad::ErrorStatus upgradeOpen();
    // Turns the writer into a reader [read]. Returns eNotInDatabase for a new object and
    // eWasOpenForRead for an object that is open for read already.
    Acad::ErrorStatus downgradeOpen();
    // Ends one opening. Aligns a text that was open for write first (AcDbText::adjustAlignment).
    // Returns eNotInDatabase for a new object, which stays as it is. An entity that
    // appendAcDbEntity left open may be closed twice: the second close returns eNotOpenForWrite and
    // changes nothing. Any other close of a closed object ends the run.
    Acad::ErrorStatus close();
    // Marks the object as erased, or with kFalse as not erased [write]. The caller still closes it.
    // An erased object is not saved, not listed, and opened only when the caller asks for erased
    // objects. Returns eNotInDatabase for a new object and eWasErased for an object that is in the
    // requested state already.
    virtual Acad::ErrorStatus erase(Adesk::Boolean erasing = Adesk::kTrue);

    struct Internals;  // the host's own

protected:
    // End the run unless the object is open, or open for write. `call` is the name that the message
    // on standard error mentions.
    void assertReadEnabled(const char* call) const;
    void assertWriteEnabled(const char* call) const;

private:
    AcDbStub* m_stub;
    AcDbStub* m_owner;
    unsigned short m_readers;  // at most 256
    bool m_forWrite;
    bool m_forgiveClose;  // whether one more close may follow the close after an append
    bool m_refused;  // the host refused an upgrade or an erase: the object may stay open on purpose
    bool m_released;         // whether the host itself deletes the object
    mutable bool m_changed;  // whether the object changed since it was unpacked
};

// An object that is drawn. Points and vectors are [wcs] unless a comment says otherwise. Lengths
// are in drawing units.
//
// Setters need the entity open for write [write]. They return eOk or a status that their comment
// names. A setter that refuses a value keeps the former one. An entity in no database accepts
// numbers that are not finite; an entity in a drawing refuses them with eInvalidInput, so that
// every drawing can be saved.
class AcDbEntity : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbEntity)

    // Creates an entity that is ByLayer and visible. It has no layer and no linetype until it is
    // appended.
    AcDbEntity();

    // Take the current layer, colour, linetype, linetype scale and lineweight of the working
    // database or of the given one, and make the entity visible [write]. Without a database they do
    // nothing. Appending an entity does the same for each of these properties that was not set
    // before.
    void setDatabaseDefaults();
    void setDatabaseDefaults(AcDbDatabase* database);

    // Returns the colour index: 0 for ByBlock, 1 to 255, or 256 for ByLayer.
    Adesk::UInt16 colorIndex() const;
    // Return the properties. An id is null until it is set or the entity is appended.
    AcDbObjectId layerId() const;
    AcDbObjectId linetypeId() const;
    double linetypeScale() const;
    AcDb::LineWeight lineWeight() const;
    AcDb::Visibility visibility() const;
    // Returns the unit normal of the entity's plane [wcs]; it is 0,0,1 for a new entity. The
    // plane's own coordinate system (OCS) follows from the normal by the arbitrary axis rule.
    AcGeVector3d normal() const;

    // In each of the following setters, doSubents passes the property on to the vertices of a
    // polyline.
    //
    // Sets the colour index. Returns eInvalidInput for an index above 256.
    virtual Acad::ErrorStatus setColorIndex(Adesk::UInt16 color,
                                            Adesk::Boolean doSubents = Adesk::kTrue);
    // Set the layer, by name or by id. A layer that is frozen or locked is accepted;
    // allowHiddenLayer has no effect. The name, in any letter case, is looked up in the entity's
    // database, or in the working database while the entity has none. The call by name returns
    // eKeyNotFound for an unknown or null name, eDeletedEntry for an erased layer, and eNoDatabase.
    // The call by id returns eWrongObjectType for a null id or the id of another kind of object.
    Acad::ErrorStatus setLayer(const ACHAR* name, Adesk::Boolean doSubents = Adesk::kTrue,
                               bool allowHiddenLayer = false);
    virtual Acad::ErrorStatus setLayer(AcDbObjectId id, Adesk::Boolean doSubents = Adesk::kTrue,
                                       bool allowHiddenLayer = false);
    // Set the linetype, by name or by id. The statuses are those of setLayer.
    Acad::ErrorStatus setLinetype(const ACHAR* name, Adesk::Boolean doSubents = Adesk::kTrue);
    virtual Acad::ErrorStatus setLinetype(AcDbObjectId id, Adesk::Boolean doSubents = Adesk::kTrue);
    // Sets the lineweight. Returns eInvalidInput for a width that is not in the list of
    // AcDb::LineWeight.
    virtual Acad::ErrorStatus setLineWeight(AcDb::LineWeight weight,
                                            Adesk::Boolean doSubents = Adesk::kTrue);
    // Shows or hides the entity. Returns eOk.
    virtual Acad::ErrorStatus setVisibility(AcDb::Visibility visibility,
                                            Adesk::Boolean doSubents = Adesk::kTrue);

    // Shows the entity now. Returns eOk. The call is also allowed after close. The host has no
    // screen and only records the call.
    Acad::ErrorStatus draw();

    // Transforms the entity by a matrix that maps [wcs] to [wcs] [write]. The entity may be in no
    // database. Returns eCannotScaleNonUniformly for a matrix that does not keep angles,
    // eInvalidInput when a number in a drawing would no longer be finite, and eNotApplicable for a
    // vertex, which moves with its polyline.
    virtual Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) = 0;
    // Appends the points that shape the entity [wcs], in the entity's own order [read]. Returns
    // eNotImplementedYet for an entity without such points.
    virtual Acad::ErrorStatus getStretchPoints(AcGePoint3dArray& points) const;
    // Appends the points that this entity and the other have in common [wcs] [read]. Returns eOk
    // also when the entities do not meet. If the other entity is in a database, it must be open.
    // Only a line can be asked, and the other entity must be a line or a 2D polyline. The points
    // come in decreasing order along this line, from its far end on. Points within
    // AcGeContext::gTol of each other count as one. Entities that pass each other in space do not
    // meet, and parts that overlap along their length give no points. The markers have no effect.
    // Returns eNullObjectPointer for a null `other` and eNotImplementedYet for any other pair of
    // entities.
    virtual Acad::ErrorStatus intersectWith(const AcDbEntity* other, AcDb::Intersect type,
                                            AcGePoint3dArray& points,
                                            Adesk::GsMarker thisMarker = 0,
                                            Adesk::GsMarker otherMarker = 0) const;

    struct Internals;  // the host's own

protected:
    // Sets the normal, which must be a unit vector.
    void setNormal(const AcGeVector3d& normal) { m_normal = normal; }
    // Passes the properties on to the parts of the entity.
    virtual void subentSetProperties() {}

private:
    AcDbStub* m_layer;
    AcDbStub* m_linetype;
    AcGeVector3d m_normal;
    double m_linetypeScale;
    Adesk::UInt16 m_color;
    Adesk::Int16 m_lineWeight;
    Adesk::UInt32
        m_reactors;  // number of the interned list of persistent reactors; 0 means no reactor
    bool m_invisible;
    unsigned char m_given;  // one bit for each property that has been set
};

// Open an object by its id. The pointer is [borrowed], and the caller closes the object. Up to 256
// readers, or a single writer, may have an object open at a time. Statuses: eNullObjectId;
// eWasErased for an erased object unless openErased is set; ePermanentlyErased for an entity that
// the same command made and erased, if openErased is set and the host has given its memory back;
// eNotThatKindOfClass; eWasOpenForWrite; eWasOpenForRead when a writer asks for an object that has
// readers; eAtMaxReaders; eOnLockedLayer when a writer asks for an entity on a locked layer;
// eNotImplementedYet for kForNotify and for a kind of object that this host only carries along. The
// pointer is null unless the status is eOk.
Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased = false);
Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& entity, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased = false);

// Opens an object that must be of the given class. With openOnLockedLayer set, a writer also gets
// an entity on a locked layer. Everything else is as in acdbOpenAcDbObject.
Acad::ErrorStatus acdbOpenOfClass(AcDbObject*& object, AcDbObjectId id, AcRxClass* type,
                                  AcDb::OpenMode mode, bool openErased, bool openOnLockedLayer);

// Opens an object of class T, as acdbOpenAcDbObject does. Returns eNotThatKindOfClass for an object
// of another class.
template <class T>
Acad::ErrorStatus acdbOpenObject(T*& object, AcDbObjectId id, AcDb::OpenMode mode = AcDb::kForRead,
                                 bool openErased = false)
{
    AcDbObject* opened = nullptr;
    const Acad::ErrorStatus status =
        acdbOpenOfClass(opened, id, T::desc(), mode, openErased, false);
    object = static_cast<T*>(opened);
    return status;
}
