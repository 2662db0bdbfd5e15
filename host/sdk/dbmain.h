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

namespace host
{
struct ObjectAccess;
class DatabaseCore;
}  // namespace host

// One drawing. Every pointer and id that it gives is its own.
class AcDbDatabase
{
public:
    AcDbDatabase();  // without tables: the host fills it from a file or from the empty drawing
    ~AcDbDatabase();

    Acad::ErrorStatus getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getLinetypeTable(AcDbLinetypeTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getTextStyleTable(AcDbTextStyleTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getGroupDictionary(AcDbDictionary*& dictionary, AcDb::OpenMode mode);

    AcDbObjectId blockTableId() const;
    AcDbObjectId layerTableId() const;
    AcDbObjectId linetypeTableId() const;
    AcDbObjectId textStyleTableId() const;

    AcDbObjectId clayer() const;     // current layer
    AcDbObjectId textstyle() const;  // current text style
    AcDbObjectId celtype() const;    // current linetype

    host::DatabaseCore& core() const { return *m_core; }  // the host's own

private:
    AcDbDatabase(const AcDbDatabase&);
    AcDbDatabase& operator=(const AcDbDatabase&);

    host::DatabaseCore* m_core;
};

// An object of the database, or one that is still to enter it.
//
// A new object counts as open for write and belongs to its maker, who may delete it. Once it is in
// a database it belongs to that and is only opened and closed. A call that needs an open object and
// gets a closed one, or one open in the wrong way, ends the run.
class AcDbObject : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbObject)

    AcDbObject();
    virtual ~AcDbObject();

    AcDbObjectId objectId() const;  // null while not in a database; readable after close
    AcDbObjectId ownerId() const;
    AcDbDatabase* database() const;
    bool isErased() const;
    bool isReadEnabled() const;
    bool isWriteEnabled() const;

    // eWasOpenForWrite, eHadMultipleReaders, eOnLockedLayer: nothing has changed.
    Acad::ErrorStatus upgradeOpen();
    Acad::ErrorStatus downgradeOpen();
    // eNotInDatabase for a new object. Closing what appendAcDbEntity left to be closed twice gives
    // eNotOpenForWrite once; any other close of a closed object ends the run.
    Acad::ErrorStatus close();
    // Marks only; needs write. eWasErased when already in that state.
    virtual Acad::ErrorStatus erase(Adesk::Boolean erasing = Adesk::kTrue);

protected:
    void assertReadEnabled(const char* call) const;
    void assertWriteEnabled(const char* call) const;

private:
    friend struct host::ObjectAccess;

    AcDbStub* m_stub;
    AcDbStub* m_owner;
    unsigned short m_readers;  // at most 256
    bool m_forWrite;
    bool m_forgiveClose;     // the one close that may follow the close after an append
    bool m_refused;          // the host refused an upgrade or an erase: may stay open on purpose
    bool m_released;         // the host itself deletes it
    mutable bool m_changed;  // since it was unpacked
};

// Anything drawn. Points are WCS unless said otherwise.
class AcDbEntity : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbEntity)

    AcDbEntity();

    // Current layer, colour, linetype, linetype scale and lineweight of the working database.
    void setDatabaseDefaults();
    void setDatabaseDefaults(AcDbDatabase* database);

    Adesk::UInt16 colorIndex() const;  // 0 ByBlock, 256 ByLayer
    AcDbObjectId layerId() const;
    AcDbObjectId linetypeId() const;
    double linetypeScale() const;
    AcDb::LineWeight lineWeight() const;
    AcDb::Visibility visibility() const;
    AcGeVector3d normal() const;  // WCS, unit length

    // eInvalidInput above 256.
    virtual Acad::ErrorStatus setColorIndex(Adesk::UInt16 color,
                                            Adesk::Boolean doSubents = Adesk::kTrue);
    // eKeyNotFound, eDeletedEntry, eNoDatabase.
    Acad::ErrorStatus setLayer(const ACHAR* name, Adesk::Boolean doSubents = Adesk::kTrue,
                               bool allowHiddenLayer = false);
    virtual Acad::ErrorStatus setLayer(AcDbObjectId id, Adesk::Boolean doSubents = Adesk::kTrue,
                                       bool allowHiddenLayer = false);
    Acad::ErrorStatus setLinetype(const ACHAR* name, Adesk::Boolean doSubents = Adesk::kTrue);
    virtual Acad::ErrorStatus setLinetype(AcDbObjectId id, Adesk::Boolean doSubents = Adesk::kTrue);
    virtual Acad::ErrorStatus setLineWeight(AcDb::LineWeight weight,
                                            Adesk::Boolean doSubents = Adesk::kTrue);
    virtual Acad::ErrorStatus setVisibility(AcDb::Visibility visibility,
                                            Adesk::Boolean doSubents = Adesk::kTrue);

    // Shows the entity now. There is no screen here; the host only notes that it was asked.
    Acad::ErrorStatus draw();

    // eCannotScaleNonUniformly for a matrix that does not keep angles.
    virtual Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) = 0;
    // Appends the points that shape the entity, in its own order.
    virtual Acad::ErrorStatus getStretchPoints(AcGePoint3dArray& points) const;
    // Appends the common points; for a line in decreasing order along it. See dbcurve.h for which
    // pairs are known; others give eNotImplementedYet.
    virtual Acad::ErrorStatus intersectWith(const AcDbEntity* other, AcDb::Intersect type,
                                            AcGePoint3dArray& points,
                                            Adesk::GsMarker thisMarker = 0,
                                            Adesk::GsMarker otherMarker = 0) const;

protected:
    void setNormal(const AcGeVector3d& normal) { m_normal = normal; }
    virtual void subentSetProperties() {}  // hands the properties on to the parts of the entity

private:
    friend struct host::ObjectAccess;

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

// eNullObjectId, eWasErased, eWasOpenForWrite, eWasOpenForRead, eAtMaxReaders, eOnLockedLayer,
// eNotThatKindOfClass; the pointer is null then.
Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased = false);
Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& entity, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased = false);

namespace host
{
// acdbOpenAcDbObject for a class; also through a locked layer when asked.
Acad::ErrorStatus openObject(AcDbObject*& object, AcDbObjectId id, AcRxClass* type,
                             AcDb::OpenMode mode, bool openErased, bool openOnLockedLayer);
}  // namespace host

template <class T>
Acad::ErrorStatus acdbOpenObject(T*& object, AcDbObjectId id, AcDb::OpenMode mode = AcDb::kForRead,
                                 bool openErased = false)
{
    AcDbObject* opened = nullptr;
    const Acad::ErrorStatus status =
        host::openObject(opened, id, T::desc(), mode, openErased, false);
    object = static_cast<T*>(opened);
    return status;
}
