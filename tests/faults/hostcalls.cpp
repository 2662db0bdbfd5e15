// Calls on drawings that can fail, each with the ways in which it can.
#include "axlock.h"
#include "dbMPolygon.h"
#include "dbapserv.h"
#include "dbdict.h"
#include "dbents.h"
#include "dbgroup.h"
#include "dbsymtb.h"
#include "host/database/objectstate.h"
#include "tests/faults/callthatfails.h"

// Documents and databases.

CALL_THAT_FAILS(AcDbHostApplicationServices*, failServices, "_Z27acdbHostApplicationServicesv",
                "acdbHostApplicationServices", (), (), static AcDbHostApplicationServices none;
                return &none, 0, nullptr)
STATUS_CALL(failBlockTable, "_ZN12AcDbDatabase13getBlockTableERP14AcDbBlockTableN4AcDb8OpenModeE",
            "AcDbDatabase::getBlockTable",
            (AcDbDatabase * self, AcDbBlockTable*& table, AcDb::OpenMode mode), (self, table, mode),
            table = nullptr, REFUSED_OPENINGS)
STATUS_CALL(failGroups, "_ZN12AcDbDatabase18getGroupDictionaryERP14AcDbDictionaryN4AcDb8OpenModeE",
            "AcDbDatabase::getGroupDictionary",
            (AcDbDatabase * self, AcDbDictionary*& groups, AcDb::OpenMode mode),
            (self, groups, mode), groups = nullptr, REFUSED_OPENINGS)
STATUS_CALL(failSetAt, "_ZN14AcDbDictionary5setAtEPKwP10AcDbObjectR12AcDbObjectId",
            "AcDbDictionary::setAt",
            (AcDbDictionary * self, const ACHAR* key, AcDbObject* value, AcDbObjectId& id),
            (self, key, value, id), id.setNull(), Acad::eInvalidKey, Acad::eNullObjectPointer,
            Acad::eAlreadyInDb, Acad::eOutOfMemory)

CALL_THAT_FAILS(AcDbObjectId, failStyle, "_ZNK12AcDbDatabase9textstyleEv",
                "AcDbDatabase::textstyle", (const AcDbDatabase* self), (self), NOTHING, 0,
                AcDbObjectId())

// A refused lock. It is in the caller's frame, and only its layout is known here: the document,
// then the status.
struct RefusedLock
{
    AcApDocument* document;
    ErrorStatus status;
};
static_assert(sizeof(RefusedLock) == sizeof(AcAxDocLock), "the lock has these members");

SILENT_CALL(failLock, "_ZN11AcAxDocLockC1ENS_11DocLockTypeE", "AcAxDocLock",
            (RefusedLock * self, AcAxDocLock::DocLockType type), (self, type),
            (*self = RefusedLock{nullptr, Acad::eNoDatabase}))

// Opening and closing. A close that reports a failure closes the object, because a failure of the
// real host means that the object was no longer open.

STATUS_CALL(failClose, "_ZN10AcDbObject5closeEv", "AcDbObject::close", (AcDbObject * self), (self),
            next(self), Acad::eNotOpenForRead, Acad::eNotOpenForWrite, Acad::eNotInDatabase,
            Acad::eWasNotifying)

STATUS_CALL(failOpenObject,
            "_Z15acdbOpenOfClassRP10AcDbObject12AcDbObjectIdP9AcRxClassN4AcDb8OpenModeEbb",
            "AcDbObjectPointer",
            (AcDbObject * &object, AcDbObjectId id, AcRxClass* type, AcDb::OpenMode mode,
             bool erased, bool locked),
            (object, id, type, mode, erased, locked), object = nullptr, REFUSED_OPENINGS)
STATUS_CALL(failOpenEntity, "_Z18acdbOpenAcDbEntityRP10AcDbEntity12AcDbObjectIdN4AcDb8OpenModeEb",
            "acdbOpenAcDbEntity",
            (AcDbEntity * &entity, AcDbObjectId id, AcDb::OpenMode mode, bool erased),
            (entity, id, mode, erased), entity = nullptr, REFUSED_OPENINGS)
STATUS_CALL(failUpgrade, "_ZN10AcDbObject11upgradeOpenEv", "AcDbObject::upgradeOpen",
            (AcDbObject * self), (self), host::ObjectState::noteRefusal(*self),
            Acad::eOnLockedLayer, Acad::eHadMultipleReaders, Acad::eWasOpenForWrite)
STATUS_CALL(failErase, "_ZN10AcDbObject5eraseEi", "AcDbObject::erase",
            (AcDbObject * self, Adesk::Boolean erasing), (self, erasing),
            host::ObjectState::noteRefusal(*self), Acad::eWasErased, Acad::eNotInDatabase,
            Acad::eIsWriteProtected)
STATUS_CALL(failTableGetAt, "_ZNK15AcDbSymbolTable5getAtEPKwR12AcDbObjectIdb",
            "AcDbSymbolTable::getAt",
            (const AcDbSymbolTable* self, const ACHAR* name, AcDbObjectId& id, bool erased),
            (self, name, id, erased), id.setNull(), Acad::eKeyNotFound, Acad::eDeletedEntry,
            Acad::eInvalidInput)
STATUS_CALL(failTableOpenAt, "_ZNK15AcDbSymbolTable6openAtEPKwRP10AcDbObjectN4AcDb8OpenModeEb",
            "AcDbBlockTable::getAt",
            (const AcDbSymbolTable* self, const ACHAR* name, AcDbObject*& record,
             AcDb::OpenMode mode, bool erased),
            (self, name, record, mode, erased), record = nullptr, Acad::eKeyNotFound,
            Acad::eInvalidInput, REFUSED_OPENINGS)
STATUS_CALL(failOpenRecord,
            "_ZNK23AcDbSymbolTableIterator10openRecordERP10AcDbObjectN4AcDb8OpenModeEb",
            "AcDbSymbolTableIterator::getRecord",
            (const AcDbSymbolTableIterator* self, AcDbObject*& record, AcDb::OpenMode mode,
             bool erased),
            (self, record, mode, erased), record = nullptr, Acad::eInvalidIndex, REFUSED_OPENINGS)
STATUS_CALL(failGetName, "_ZNK21AcDbSymbolTableRecord7getNameERPw",
            "AcDbSymbolTableRecord::getName(ACHAR*&)",
            (const AcDbSymbolTableRecord* self, ACHAR*& name), (self, name), name = nullptr,
            Acad::eInvalidInput, Acad::eOutOfMemory)
STATUS_CALL(failGetConstName, "_ZNK21AcDbSymbolTableRecord7getNameERPKw",
            "AcDbSymbolTableRecord::getName",
            (const AcDbSymbolTableRecord* self, const ACHAR*& name), (self, name), name = nullptr,
            Acad::eInvalidInput)

// Entities and groups.

STATUS_CALL(failAppend, "_ZN20AcDbBlockTableRecord16appendAcDbEntityER12AcDbObjectIdP10AcDbEntity",
            "AcDbBlockTableRecord::appendAcDbEntity",
            (AcDbBlockTableRecord * self, AcDbObjectId& id, AcDbEntity* entity), (self, id, entity),
            id.setNull(), Acad::eNullObjectPointer, Acad::eAlreadyInDb, Acad::eOutOfMemory)
STATUS_CALL(failDraw, "_ZN10AcDbEntity4drawEv", "AcDbEntity::draw", (AcDbEntity * self), (self),
            NOTHING, Acad::eInvalidInput)
STATUS_CALL(failSetLinetype, "_ZN10AcDbEntity11setLinetypeEPKwi", "AcDbEntity::setLinetype",
            (AcDbEntity * self, const ACHAR* name, Adesk::Boolean subents), (self, name, subents),
            NOTHING, Acad::eKeyNotFound, Acad::eNoDatabase, Acad::eInvalidInput,
            Acad::eDeletedEntry, Acad::eWrongObjectType)
STATUS_CALL(failSetColor, "_ZN10AcDbEntity13setColorIndexEti", "AcDbEntity::setColorIndex",
            (AcDbEntity * self, Adesk::UInt16 color, Adesk::Boolean subents),
            (self, color, subents), NOTHING, Acad::eInvalidInput)
STATUS_CALL(failSetWeight, "_ZN10AcDbEntity13setLineWeightEN4AcDb10LineWeightEi",
            "AcDbEntity::setLineWeight",
            (AcDbEntity * self, AcDb::LineWeight weight, Adesk::Boolean subents),
            (self, weight, subents), NOTHING, Acad::eInvalidInput)
STATUS_CALL(failPolylineColor, "_ZN14AcDb2dPolyline13setColorIndexEti",
            "AcDb2dPolyline::setColorIndex",
            (AcDb2dPolyline * self, Adesk::UInt16 color, Adesk::Boolean subents),
            (self, color, subents), NOTHING, Acad::eInvalidInput)
STATUS_CALL(failPolylineWeight, "_ZN14AcDb2dPolyline13setLineWeightEN4AcDb10LineWeightEi",
            "AcDb2dPolyline::setLineWeight",
            (AcDb2dPolyline * self, AcDb::LineWeight weight, Adesk::Boolean subents),
            (self, weight, subents), NOTHING, Acad::eInvalidInput)
STATUS_CALL(failTransformLine, "_ZN8AcDbLine11transformByERK12AcGeMatrix3d",
            "AcDbLine::transformBy", (AcDbLine * self, const AcGeMatrix3d& matrix), (self, matrix),
            NOTHING, Acad::eCannotScaleNonUniformly)
STATUS_CALL(failTransformText, "_ZN8AcDbText11transformByERK12AcGeMatrix3d",
            "AcDbText::transformBy", (AcDbText * self, const AcGeMatrix3d& matrix), (self, matrix),
            NOTHING, Acad::eCannotScaleNonUniformly)
STATUS_CALL(failTransformPolyline, "_ZN14AcDb2dPolyline11transformByERK12AcGeMatrix3d",
            "AcDb2dPolyline::transformBy", (AcDb2dPolyline * self, const AcGeMatrix3d& matrix),
            (self, matrix), NOTHING, Acad::eCannotScaleNonUniformly)
STATUS_CALL(failPolylineVisibility, "_ZN14AcDb2dPolyline13setVisibilityEN4AcDb10VisibilityEi",
            "AcDb2dPolyline::setVisibility",
            (AcDb2dPolyline * self, AcDb::Visibility visibility, Adesk::Boolean subents),
            (self, visibility, subents), NOTHING, Acad::eInvalidInput)
STATUS_CALL(failStretchPoints, "_ZNK14AcDb2dPolyline16getStretchPointsER7AcArrayI11AcGePoint3dE",
            "AcDb2dPolyline::getStretchPoints",
            (const AcDb2dPolyline* self, AcGePoint3dArray& points), (self, points), NOTHING,
            Acad::eNotImplementedYet)
STATUS_CALL(
    failIntersect,
    "_ZNK8AcDbLine13intersectWithEPK10AcDbEntityN4AcDb9IntersectER7AcArrayI11AcGePoint3dEll",
    "AcDbLine::intersectWith",
    (const AcDbLine* self, const AcDbEntity* other, AcDb::Intersect type, AcGePoint3dArray& points,
     Adesk::GsMarker own, Adesk::GsMarker others),
    (self, other, type, points, own, others), NOTHING, Acad::eNotImplementedYet,
    Acad::eNullObjectPointer)
STATUS_CALL(failLoop, "_ZN12AcDbMPolygon22appendLoopFromBoundaryEPK14AcDb2dPolylinebd",
            "AcDbMPolygon::appendLoopFromBoundary",
            (AcDbMPolygon * self, const AcDb2dPolyline* boundary, bool cross, double tolerance),
            (self, boundary, cross, tolerance), NOTHING, Acad::eInvalidInput)
CALL_THAT_FAILS(int, failInsidePolygon,
                "_ZNK12AcDbMPolygon21isPointInsideMPolygonERK11AcGePoint3dR7AcArrayIiEd",
                "AcDbMPolygon::isPointInsideMPolygon",
                (const AcDbMPolygon* self, const AcGePoint3d& point, AcGeIntArray& loops,
                 double tolerance),
                (self, point, loops, tolerance), NOTHING, 0, -1, 0)
STATUS_CALL(failClosestPoint, "_ZNK14AcDb2dPolyline17getClosestPointToERK11AcGePoint3dRS0_i",
            "AcDb2dPolyline::getClosestPointTo",
            (const AcDb2dPolyline* self, const AcGePoint3d& given, AcGePoint3d& onCurve,
             Adesk::Boolean extend),
            (self, given, onCurve, extend), NOTHING, Acad::eInvalidInput, Acad::eNotImplementedYet)
STATUS_CALL(failMakeClosed, "_ZN14AcDb2dPolyline10makeClosedEv", "AcDb2dPolyline::makeClosed",
            (AcDb2dPolyline * self), (self), NOTHING, Acad::eInvalidInput)
STATUS_CALL(failGeneration, "_ZN14AcDb2dPolyline23setLinetypeGenerationOnEv",
            "AcDb2dPolyline::setLinetypeGenerationOn", (AcDb2dPolyline * self), (self), NOTHING,
            Acad::eInvalidInput)
STATUS_CALL(failGroupAppend, "_ZN9AcDbGroup6appendERK12AcDbObjectId", "AcDbGroup::append",
            (AcDbGroup * self, const AcDbObjectId& id), (self, id), NOTHING, Acad::eAlreadyInGroup,
            Acad::eNotAnEntity, Acad::eNullObjectId, Acad::eNotInDatabase)

#define TEXT_CALL(NAME, SYMBOL, TITLE, TYPE, ...)                                           \
    STATUS_CALL(NAME, SYMBOL, TITLE, (AcDbText * self, TYPE value), (self, value), NOTHING, \
                Acad::eInvalidInput __VA_OPT__(, ) __VA_ARGS__)
TEXT_CALL(failPosition, "_ZN8AcDbText11setPositionERK11AcGePoint3d", "AcDbText::setPosition",
          const AcGePoint3d&)
TEXT_CALL(failAlignment, "_ZN8AcDbText17setAlignmentPointERK11AcGePoint3d",
          "AcDbText::setAlignmentPoint", const AcGePoint3d&, Acad::eNotApplicable)
TEXT_CALL(failTextStyle, "_ZN8AcDbText12setTextStyleE12AcDbObjectId", "AcDbText::setTextStyle",
          AcDbObjectId, Acad::eWrongObjectType)
TEXT_CALL(failOblique, "_ZN8AcDbText10setObliqueEd", "AcDbText::setOblique", double)
TEXT_CALL(failWidth, "_ZN8AcDbText14setWidthFactorEd", "AcDbText::setWidthFactor", double)
TEXT_CALL(failHeight, "_ZN8AcDbText9setHeightEd", "AcDbText::setHeight", double)
TEXT_CALL(failRotation, "_ZN8AcDbText11setRotationEd", "AcDbText::setRotation", double)
TEXT_CALL(failTextString, "_ZN8AcDbText13setTextStringEPKw", "AcDbText::setTextString",
          const ACHAR*)
TEXT_CALL(failHorizontal, "_ZN8AcDbText17setHorizontalModeEN4AcDb12TextHorzModeE",
          "AcDbText::setHorizontalMode", AcDb::TextHorzMode)
TEXT_CALL(failVertical, "_ZN8AcDbText15setVerticalModeEN4AcDb12TextVertModeE",
          "AcDbText::setVerticalMode", AcDb::TextVertMode)
