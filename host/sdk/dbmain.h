// Database, objects and entities.
#pragma once

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

// One drawing. It owns every object in it; every pointer and id that it gives is [borrowed] and
// good until the drawing is closed. A module does not make one: it asks the document or the host.
class AcDbDatabase
{
public:
    // A drawing without tables: the host fills it from a file or from the empty drawing.
    AcDbDatabase();
    // Ends every object; if it is the working database there is none after it.
    ~AcDbDatabase();

    // Each opens a table or the group dictionary, which the caller closes. The statuses are those
    // of acdbOpenAcDbObject; the pointer is null unless eOk.
    Acad::ErrorStatus getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getLinetypeTable(AcDbLinetypeTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getTextStyleTable(AcDbTextStyleTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getGroupDictionary(AcDbDictionary*& dictionary, AcDb::OpenMode mode);

    // Ids of the tables; null in a drawing without them.
    AcDbObjectId blockTableId() const;
    AcDbObjectId layerTableId() const;
    AcDbObjectId linetypeTableId() const;
    AcDbObjectId textStyleTableId() const;

    // What new entities get: the current layer, text style and linetype.
    AcDbObjectId clayer() const;
    AcDbObjectId textstyle() const;
    AcDbObjectId celtype() const;

    struct Internals;  // the host's own

private:
    AcDbDatabase(const AcDbDatabase&);
    AcDbDatabase& operator=(const AcDbDatabase&);

    Internals* m_internals;
};

// An object of the database, or one that is still to enter it.
//
// A new object counts as open for write and belongs to its maker, who may delete it. Once it is in
// a database it belongs to that and is only opened and closed; to delete it ends the run. Whoever
// opens an object closes it before the command ends; an object that is left open ends the run.
//
// A call with [read] needs the object open, one with [write] needs it open for write; on a closed
// object, or one that is open in the wrong way, such a call ends the run.
class AcDbObject : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbObject)

    AcDbObject();           // open for write, in no database
    virtual ~AcDbObject();  // ends the run for an object of a database

    // Its id; null while it is in no database. It may be asked for after close, too, as long
    // as nothing else has been opened since.
    AcDbObjectId objectId() const;
    // The block, table, dictionary or polyline that it is in; null while it is in no database.
    AcDbObjectId ownerId() const;
    // The drawing that it is in [borrowed]; null while it is in none.
    AcDbDatabase* database() const;
    // Whether it is erased; false while it is in no database.
    bool isErased() const;
    // Whether it is open, and whether it is open for write.
    bool isReadEnabled() const;
    bool isWriteEnabled() const;

    // Turns the only reader into the writer [read]; one close closes the object after it.
    // eWasOpenForWrite, eHadMultipleReaders, eOnLockedLayer: nothing has changed, and the readers
    // stay.
    Acad::ErrorStatus upgradeOpen();
    // Turns the writer into a reader [read]. eNotInDatabase for a new object, eWasOpenForRead.
    Acad::ErrorStatus downgradeOpen();
    // Ends one opening. A text that was open for write is aligned first
    // (AcDbText::adjustAlignment). eNotInDatabase for a new object, which stays as it is. An entity
    // that appendAcDbEntity left open may be closed twice: the second close gives eNotOpenForWrite
    // and changes nothing. Any other close of a closed object ends the run.
    Acad::ErrorStatus close();
    // Marks the object as erased, or with kFalse as not erased [write]; it is still to be closed.
    // An erased object is not saved, not listed, and opened only by who asks for erased ones.
    // eNotInDatabase for a new object, eWasErased when it is in that state already.
    virtual Acad::ErrorStatus erase(Adesk::Boolean erasing = Adesk::kTrue);

    struct Internals;  // the host's own

protected:
    // End the run unless the object is open, or open for write. `call` is the name that the line on
    // standard error tells.
    void assertReadEnabled(const char* call) const;
    void assertWriteEnabled(const char* call) const;

private:
    AcDbStub* m_stub;
    AcDbStub* m_owner;
    unsigned short m_readers;  // at most 256
    bool m_forWrite;
    bool m_forgiveClose;     // the one close that may follow the close after an append
    bool m_refused;          // the host refused an upgrade or an erase: may stay open on purpose
    bool m_released;         // the host itself deletes it
    mutable bool m_changed;  // since it was unpacked
};

// Anything drawn. Points and vectors are [wcs] unless said otherwise, lengths are in drawing units.
//
// Setters need the entity open for write [write] and return eOk or what is said with them; a value
// that is refused leaves the former one. A number that is not finite is taken while the entity is
// in no database; in a drawing it is eInvalidInput, so that every drawing can be saved.
class AcDbEntity : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbEntity)

    // ByLayer, visible, without a layer and linetype until it is appended.
    AcDbEntity();

    // Takes the current layer, colour, linetype, linetype scale and lineweight of the working
    // database, or of the given one, and makes the entity visible [write]. Without a database it
    // does nothing. An append does the same for each of these that was not set before.
    void setDatabaseDefaults();
    void setDatabaseDefaults(AcDbDatabase* database);

    // Colour index: 0 ByBlock, 1 to 255, 256 ByLayer.
    Adesk::UInt16 colorIndex() const;
    // Its properties; the ids are null until they are set or the entity is appended.
    AcDbObjectId layerId() const;
    AcDbObjectId linetypeId() const;
    double linetypeScale() const;
    AcDb::LineWeight lineWeight() const;
    AcDb::Visibility visibility() const;
    // Unit normal of its plane [wcs]; 0,0,1 for a new entity. Its own plane system (OCS) follows
    // from it by the arbitrary axis rule.
    AcGeVector3d normal() const;

    // In all of these doSubents hands the property on to the vertices of a polyline.
    //
    // eInvalidInput above 256.
    virtual Acad::ErrorStatus setColorIndex(Adesk::UInt16 color,
                                            Adesk::Boolean doSubents = Adesk::kTrue);
    // By name, in any letter case, in the entity's database or else the working one: eKeyNotFound,
    // also for a null name, eDeletedEntry, eNoDatabase. By id: eWrongObjectType, also for a null
    // id. A layer that is frozen or locked is taken; allowHiddenLayer has no effect.
    Acad::ErrorStatus setLayer(const ACHAR* name, Adesk::Boolean doSubents = Adesk::kTrue,
                               bool allowHiddenLayer = false);
    virtual Acad::ErrorStatus setLayer(AcDbObjectId id, Adesk::Boolean doSubents = Adesk::kTrue,
                                       bool allowHiddenLayer = false);
    // As setLayer.
    Acad::ErrorStatus setLinetype(const ACHAR* name, Adesk::Boolean doSubents = Adesk::kTrue);
    virtual Acad::ErrorStatus setLinetype(AcDbObjectId id, Adesk::Boolean doSubents = Adesk::kTrue);
    // eInvalidInput for a width that is not in the list of AcDb::LineWeight.
    virtual Acad::ErrorStatus setLineWeight(AcDb::LineWeight weight,
                                            Adesk::Boolean doSubents = Adesk::kTrue);
    // Shows or hides the entity; eOk.
    virtual Acad::ErrorStatus setVisibility(AcDb::Visibility visibility,
                                            Adesk::Boolean doSubents = Adesk::kTrue);

    // Shows the entity now; eOk. It may be called after close, too. There is no screen here: the
    // host only notes that it was asked.
    Acad::ErrorStatus draw();

    // Moves the entity by matrix, which maps [wcs] to [wcs] [write]. The entity may be in no
    // database. eCannotScaleNonUniformly for a matrix that does not keep angles, eInvalidInput when
    // a number would no longer be finite in a drawing, eNotApplicable for a vertex, which moves
    // with its polyline.
    virtual Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) = 0;
    // Appends the points that shape the entity [wcs], in its own order [read].
    // eNotImplementedYet for an entity without any.
    virtual Acad::ErrorStatus getStretchPoints(AcGePoint3dArray& points) const;
    // Appends the points that this entity and the other have in common [wcs] [read]; eOk also when
    // there are none. The other has to be open if it is in a database. Only a line can ask, and it
    // can ask for a line or a 2D polyline. Its points come in decreasing order along it, the far
    // end first, and points within AcGeContext::gTol count as one. Nothing is met in another plane.
    // The markers have no effect. eNullObjectPointer for a null other, eNotImplementedYet for any
    // other pair.
    virtual Acad::ErrorStatus intersectWith(const AcDbEntity* other, AcDb::Intersect type,
                                            AcGePoint3dArray& points,
                                            Adesk::GsMarker thisMarker = 0,
                                            Adesk::GsMarker otherMarker = 0) const;

    struct Internals;  // the host's own

protected:
    // Sets the normal, which has to be a unit vector.
    void setNormal(const AcGeVector3d& normal) { m_normal = normal; }
    // Hands the properties on to the parts of the entity.
    virtual void subentSetProperties() {}

private:
    AcDbStub* m_layer;
    AcDbStub* m_linetype;
    AcGeVector3d m_normal;
    double m_linetypeScale;
    Adesk::UInt16 m_color;
    Adesk::Int16 m_lineWeight;
    Adesk::UInt32 m_reactors;  // number of the interned list of persistent reactors; 0 for none
    bool m_invisible;
    unsigned char m_given;  // properties that have been set, a bit each
};

// Open an object by its id. The caller closes it [borrowed]. Up to 256 readers may have an object
// open at a time, or one writer alone. eNullObjectId; eWasErased unless openErased is set;
// eNotThatKindOfClass; eWasOpenForWrite; eWasOpenForRead when a writer asks for an object that has
// readers; eAtMaxReaders; eOnLockedLayer when a writer asks for an entity on a locked layer;
// eNotImplementedYet for kForNotify and for a kind of object that this host only carries along. The
// pointer is null then.
Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased = false);
Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& entity, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased = false);

// acdbOpenAcDbObject for a class; also through a locked layer when asked.
Acad::ErrorStatus acdbOpenOfClass(AcDbObject*& object, AcDbObjectId id, AcRxClass* type,
                                  AcDb::OpenMode mode, bool openErased, bool openOnLockedLayer);

// The same for one class T: an object of another class is eNotThatKindOfClass.
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
