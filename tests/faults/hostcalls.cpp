// The host's calls that can fail, each with the ways in which it can.
//
// A function of a class is written as the plain function that it is to the linker: the object comes
// first. A failed call leaves everything as it was, but for what it promises to clear.
#include <cstdarg>
#include <iterator>

#include "accmd.h"
#include "acdocman.h"
#include "acuiDialog.h"
#include "dbapserv.h"
#include "aduiButton.h"
#include "aced.h"
#include "acedads.h"
#include "crt.h"
#include "dbMPolygon.h"
#include "dbdict.h"
#include "dbents.h"
#include "dbgroup.h"
#include "dbsymtb.h"
#include "host/database/access.h"
#include "tests/app/original.h"
#include "tests/faults/faults.h"

using Acad::ErrorStatus;
using faults::outcomeOf;

#define CALLER __builtin_return_address(0)

// RESULT NAME PARAMETERS, called SYMBOL by the linker and TITLE by people. CLEAR is done when it
// fails; then it gives one of the outcomes. The last ONCE of these it gives once a run only.
#define CALL_THAT_FAILS(RESULT, NAME, SYMBOL, TITLE, PARAMETERS, ARGUMENTS, CLEAR, ONCE, ...) \
    extern "C" __attribute__((visibility("default"))) RESULT NAME PARAMETERS __asm__(SYMBOL); \
    extern "C" RESULT NAME PARAMETERS                                                         \
    {                                                                                         \
        static auto* const next = original<RESULT PARAMETERS>(SYMBOL);                        \
        static RESULT const outcomes[] = {__VA_ARGS__};                                       \
        const int outcome = outcomeOf(TITLE, std::size(outcomes), ONCE, CALLER);              \
        if (outcome < 0)                                                                      \
        {                                                                                     \
            return next ARGUMENTS;                                                            \
        }                                                                                     \
        CLEAR;                                                                                \
        return outcomes[outcome];                                                             \
    }                                                                                         \
    [[maybe_unused]] const bool NAME##IsListed =                                              \
        faults::list(TITLE, SYMBOL, reinterpret_cast<void*>(NAME));

#define STATUS_CALL(NAME, SYMBOL, TITLE, PARAMETERS, ARGUMENTS, CLEAR, ...) \
    CALL_THAT_FAILS(ErrorStatus, NAME, SYMBOL, TITLE, PARAMETERS, ARGUMENTS, CLEAR, 0, __VA_ARGS__)

#define NOTHING ((void)0)

// Documents and databases.

CALL_THAT_FAILS(AcApDocManager*, failDocManager, "_Z15acDocManagerPtrv", "acDocManager", (), (),
                NOTHING, 0, nullptr)
CALL_THAT_FAILS(AcDbHostApplicationServices*, failServices, "_Z27acdbHostApplicationServicesv",
                "acdbHostApplicationServices", (), (), static AcDbHostApplicationServices none;
                return &none, 0, nullptr)
STATUS_CALL(failBlockTable, "_ZN12AcDbDatabase13getBlockTableERP14AcDbBlockTableN4AcDb8OpenModeE",
            "AcDbDatabase::getBlockTable",
            (AcDbDatabase * self, AcDbBlockTable*& table, AcDb::OpenMode mode), (self, table, mode),
            table = nullptr, Acad::eWasOpenForWrite, Acad::eAtMaxReaders)
STATUS_CALL(failGroups, "_ZN12AcDbDatabase18getGroupDictionaryERP14AcDbDictionaryN4AcDb8OpenModeE",
            "AcDbDatabase::getGroupDictionary",
            (AcDbDatabase * self, AcDbDictionary*& groups, AcDb::OpenMode mode),
            (self, groups, mode), groups = nullptr, Acad::eWasOpenForRead, Acad::eKeyNotFound)
STATUS_CALL(failSetAt, "_ZN14AcDbDictionary5setAtEPKwP10AcDbObjectR12AcDbObjectId",
            "AcDbDictionary::setAt",
            (AcDbDictionary * self, const ACHAR* key, AcDbObject* value, AcDbObjectId& id),
            (self, key, value, id), id.setNull(), Acad::eInvalidKey, Acad::eOutOfMemory)

// Opening.

STATUS_CALL(failOpenObject,
            "_ZN4host10openObjectERP10AcDbObject12AcDbObjectIdP9AcRxClassN4AcDb8OpenModeEbb",
            "AcDbObjectPointer",
            (AcDbObject * &object, AcDbObjectId id, AcRxClass* type, AcDb::OpenMode mode,
             bool erased, bool locked),
            (object, id, type, mode, erased, locked), object = nullptr, Acad::eWasOpenForWrite,
            Acad::eWasErased)
STATUS_CALL(failOpenEntity, "_Z18acdbOpenAcDbEntityRP10AcDbEntity12AcDbObjectIdN4AcDb8OpenModeEb",
            "acdbOpenAcDbEntity",
            (AcDbEntity * &entity, AcDbObjectId id, AcDb::OpenMode mode, bool erased),
            (entity, id, mode, erased), entity = nullptr, Acad::eWasOpenForWrite, Acad::eWasErased)
STATUS_CALL(failUpgrade, "_ZN10AcDbObject11upgradeOpenEv", "AcDbObject::upgradeOpen",
            (AcDbObject * self), (self), host::ObjectAccess::refused(*self) = true,
            Acad::eOnLockedLayer, Acad::eHadMultipleReaders)
STATUS_CALL(failErase, "_ZN10AcDbObject5eraseEi", "AcDbObject::erase",
            (AcDbObject * self, Adesk::Boolean erasing), (self, erasing),
            host::ObjectAccess::refused(*self) = true, Acad::eWasErased, Acad::eIsWriteProtected)
STATUS_CALL(failTableGetAt, "_ZNK15AcDbSymbolTable5getAtEPKwR12AcDbObjectIdb",
            "AcDbSymbolTable::getAt",
            (const AcDbSymbolTable* self, const ACHAR* name, AcDbObjectId& id, bool erased),
            (self, name, id, erased), id.setNull(), Acad::eKeyNotFound, Acad::eDeletedEntry)
STATUS_CALL(failTableOpenAt, "_ZNK15AcDbSymbolTable6openAtEPKwRP10AcDbObjectN4AcDb8OpenModeEb",
            "AcDbBlockTable::getAt",
            (const AcDbSymbolTable* self, const ACHAR* name, AcDbObject*& record,
             AcDb::OpenMode mode, bool erased),
            (self, name, record, mode, erased), record = nullptr, Acad::eKeyNotFound,
            Acad::eWasOpenForRead)
STATUS_CALL(
    failOpenRecord, "_ZNK23AcDbSymbolTableIterator10openRecordERP10AcDbObjectN4AcDb8OpenModeEb",
    "AcDbSymbolTableIterator::getRecord",
    (const AcDbSymbolTableIterator* self, AcDbObject*& record, AcDb::OpenMode mode, bool erased),
    (self, record, mode, erased), record = nullptr, Acad::eWasOpenForWrite, Acad::eWasErased)
STATUS_CALL(failGetName, "_ZNK21AcDbSymbolTableRecord7getNameERPw",
            "AcDbSymbolTableRecord::getName(ACHAR*&)",
            (const AcDbSymbolTableRecord* self, ACHAR*& name), (self, name), name = nullptr,
            Acad::eOutOfMemory)
STATUS_CALL(failGetConstName, "_ZNK21AcDbSymbolTableRecord7getNameERPKw",
            "AcDbSymbolTableRecord::getName",
            (const AcDbSymbolTableRecord* self, const ACHAR*& name), (self, name), name = nullptr,
            Acad::eInvalidInput)

// Entities and groups.

STATUS_CALL(failAppend, "_ZN20AcDbBlockTableRecord16appendAcDbEntityER12AcDbObjectIdP10AcDbEntity",
            "AcDbBlockTableRecord::appendAcDbEntity",
            (AcDbBlockTableRecord * self, AcDbObjectId& id, AcDbEntity* entity), (self, id, entity),
            id.setNull(), Acad::eOutOfMemory, Acad::eAlreadyInDb)
STATUS_CALL(failDraw, "_ZN10AcDbEntity4drawEv", "AcDbEntity::draw", (AcDbEntity * self), (self),
            NOTHING, Acad::eInvalidInput)
STATUS_CALL(failSetLinetype, "_ZN10AcDbEntity11setLinetypeEPKwi", "AcDbEntity::setLinetype",
            (AcDbEntity * self, const ACHAR* name, Adesk::Boolean subents), (self, name, subents),
            NOTHING, Acad::eKeyNotFound)
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
STATUS_CALL(failGroupAppend, "_ZN9AcDbGroup6appendERK12AcDbObjectId", "AcDbGroup::append",
            (AcDbGroup * self, const AcDbObjectId& id), (self, id), NOTHING, Acad::eAlreadyInGroup,
            Acad::eNotAnEntity)

#define TEXT_CALL(NAME, SYMBOL, TITLE, TYPE)                                                \
    STATUS_CALL(NAME, SYMBOL, TITLE, (AcDbText * self, TYPE value), (self, value), NOTHING, \
                Acad::eInvalidInput)
TEXT_CALL(failPosition, "_ZN8AcDbText11setPositionERK11AcGePoint3d", "AcDbText::setPosition",
          const AcGePoint3d&)
TEXT_CALL(failAlignment, "_ZN8AcDbText17setAlignmentPointERK11AcGePoint3d",
          "AcDbText::setAlignmentPoint", const AcGePoint3d&)
TEXT_CALL(failTextStyle, "_ZN8AcDbText12setTextStyleE12AcDbObjectId", "AcDbText::setTextStyle",
          AcDbObjectId)
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

// The editor. A prompt that is refused is asked again, as often as it takes: once only. Without its
// options a prompt is refused as well.

CALL_THAT_FAILS(int, failInitGet, "_Z11acedInitGetiPKw", "acedInitGet",
                (int bits, const ACHAR* keywords), (bits, keywords), NOTHING, 1, RTERROR)
CALL_THAT_FAILS(int, failGetPoint, "_Z12acedGetPointPKdPKwPd", "acedGetPoint",
                (const ads_point base, const ACHAR* prompt, ads_point result),
                (base, prompt, result), NOTHING, 2, RTERROR, RTCAN, RTNONE, RTREJ)
CALL_THAT_FAILS(int, failGetCorner, "_Z13acedGetCornerPKdPKwPd", "acedGetCorner",
                (const ads_point base, const ACHAR* prompt, ads_point result),
                (base, prompt, result), NOTHING, 2, RTERROR, RTCAN, RTNONE, RTREJ)
CALL_THAT_FAILS(int, failGetDist, "_Z11acedGetDistPKdPKwPd", "acedGetDist",
                (const ads_point base, const ACHAR* prompt, ads_real* result),
                (base, prompt, result), NOTHING, 0, RTERROR, RTCAN, RTNONE)
CALL_THAT_FAILS(int, failGetKword, "_Z12acedGetKwordPKwPw", "acedGetKword",
                (const ACHAR* prompt, ACHAR* result), (prompt, result), NOTHING, 1, RTCAN, RTNONE,
                RTERROR)
CALL_THAT_FAILS(int, failGetInput, "_Z12acedGetInputPw", "acedGetInput", (ACHAR * text), (text),
                NOTHING, 0, RTERROR)
CALL_THAT_FAILS(int, failGetVar, "_Z10acedGetVarPKwP6resbuf", "acedGetVar",
                (const ACHAR* name, resbuf* result), (name, result), NOTHING, 0, RTERROR)
CALL_THAT_FAILS(int, failSetVar, "_Z10acedSetVarPKwPK6resbuf", "acedSetVar",
                (const ACHAR* name, const resbuf* value), (name, value), NOTHING, 0, RTERROR)
CALL_THAT_FAILS(bool, failToUcs, "_Z11acdbWcs2UcsPdS_b", "acdbWcs2Ucs",
                (ads_point from, ads_point to, bool vector), (from, to, vector), NOTHING, 0, false)
CALL_THAT_FAILS(bool, failToWcs, "_Z11acdbUcs2WcsPdS_b", "acdbUcs2Wcs",
                (ads_point from, ads_point to, bool vector), (from, to, vector), NOTHING, 0, false)
STATUS_CALL(failGetUcs, "_Z17acedGetCurrentUCSR12AcGeMatrix3d", "acedGetCurrentUCS",
            (AcGeMatrix3d & matrix), (matrix), NOTHING, Acad::eNoDatabase)
STATUS_CALL(failSetUcs, "_Z17acedSetCurrentUCSRK12AcGeMatrix3d", "acedSetCurrentUCS",
            (const AcGeMatrix3d& matrix), (matrix), NOTHING, Acad::eInvalidInput)
CALL_THAT_FAILS(bool, failPreviousUcs, "_Z22acedRestorePreviousUCSv", "acedRestorePreviousUCS", (),
                (), NOTHING, 0, false)
CALL_THAT_FAILS(int, failMeter, "_Z29acedSetStatusBarProgressMeterPKwii",
                "acedSetStatusBarProgressMeter", (const ACHAR* label, int least, int most),
                (label, least, most), NOTHING, 0, -1)
CALL_THAT_FAILS(int, failMeterPosition, "_Z32acedSetStatusBarProgressMeterPosi",
                "acedSetStatusBarProgressMeterPos", (int position), (position), NOTHING, 0, -1)

// Windows and its C runtime.

CALL_THAT_FAILS(INT_PTR, failDoModal, "_ZN15CAdUiBaseDialog7DoModalEv", "CAcUiDialog::DoModal",
                (CAdUiBaseDialog * self), (self), NOTHING, 0, -1, IDCANCEL)
CALL_THAT_FAILS(BOOL, failAutoLoad, "_ZN20CAdUiOwnerDrawButton8AutoLoadEv",
                "CAdUiBitmapButton::AutoLoad", (CAdUiOwnerDrawButton * self), (self), NOTHING, 0,
                FALSE)
CALL_THAT_FAILS(int, failMessageBox, "MessageBoxW", "MessageBox",
                (HWND owner, LPCWSTR text, LPCWSTR caption, UINT type),
                (owner, text, caption, type), NOTHING, 0, 0)
CALL_THAT_FAILS(DWORD, failModuleName, "GetModuleFileNameW", "GetModuleFileName",
                (HINSTANCE module, LPWSTR name, DWORD room), (module, name, room), NOTHING, 0, 0)
CALL_THAT_FAILS(int, failLocaleName, "LCIDToLocaleName", "LCIDToLocaleName",
                (LCID locale, LPWSTR name, int room, DWORD flags), (locale, name, room, flags),
                NOTHING, 0, 0)
CALL_THAT_FAILS(FILE*, failOpenFile, "_wfopen", "_wfopen",
                (const wchar_t* path, const wchar_t* mode), (path, mode), NOTHING, 0, nullptr)
CALL_THAT_FAILS(wint_t, failReadChar, "crtFgetwc", "fgetwc", (FILE * stream), (stream), NOTHING, 0,
                WEOF)
