// The host's functions that the module calls, as the host's makers publish them. Our headers must
// declare them so: where they differed, the module would build here and not beside the real ones.
//
// Compiling is one half of the check. The other is check_objectarx.py, which reads the rows back
// from the object file and compares them with what the module imports.
#include <type_traits>

#include "hostapi/host.h"

// A function in any of its overloads, or a datum; inherited ones under the class that has them.
template <class Type, Type what>
struct Declared
{
    static void row() {}
};
#define DECLARED(WHAT, ...) template struct Declared<__VA_ARGS__, &WHAT>

template <class Type>
Type& a();

// The address of a constructor cannot be taken, so arguments of these very types must make one.
template <class Class, class... Arguments>
struct Constructed
{
    static_assert(sizeof(Class(a<Arguments>()...)) > 0, "");
    static void row() {}
};
#define CONSTRUCTED(...) template struct Constructed<__VA_ARGS__>

// Macros, inline functions and templates of the headers have no symbols.
#define GIVES(TYPE, ...) \
    static_assert(std::is_same<TYPE, decltype(__VA_ARGS__)>::value, #__VA_ARGS__)

typedef Acad::ErrorStatus Status;

// Prompts, variables, messages.
DECLARED(acedInitGet, int (*)(int, const ACHAR*));
DECLARED(acedGetPoint, int (*)(const ads_point, const ACHAR*, ads_point));
DECLARED(acedGetCorner, int (*)(const ads_point, const ACHAR*, ads_point));
DECLARED(acedGetDist, int (*)(const ads_point, const ACHAR*, ads_real*));
DECLARED(acedGetKword, int (*)(const ACHAR*, ACHAR*));
DECLARED(acedGetInput, int (*)(ACHAR*));
DECLARED(acedGetVar, int (*)(const ACHAR*, resbuf*));
DECLARED(acedSetVar, int (*)(const ACHAR*, const resbuf*));
DECLARED(acedAlert, int (*)(const ACHAR*));
DECLARED(acedDefun, int (*)(const ACHAR*, short));
DECLARED(acedUndef, int (*)(const ACHAR*, short));
DECLARED(acedRegFunc, int (*)(int (*)(), int));
DECLARED(acedGetFunCode, int (*)());
DECLARED(adsw_acadMainWnd, HWND (*)());
DECLARED(acutPrintf, int (*)(const ACHAR*, ...));
DECLARED(acutAngle, ads_real (*)(const ads_point, const ads_point));
DECLARED(acutDelBuffer, void (*)(ACHAR*&));
DECLARED(acedSetStatusBarProgressMeter, int (*)(const ACHAR*, int, int));
DECLARED(acedSetStatusBarProgressMeterPos, int (*)(int));
DECLARED(acedRestoreStatusBar, void (*)());

// The current UCS.
DECLARED(acedGetCurrentUCS, Status (*)(AcGeMatrix3d&));
DECLARED(acedSetCurrentUCS, Status (*)(const AcGeMatrix3d&));
DECLARED(acedRestorePreviousUCS, bool (*)());
DECLARED(acdbWcs2Ucs, bool (*)(ads_point, ads_point, bool));
DECLARED(acdbUcs2Wcs, bool (*)(ads_point, ads_point, bool));

// The module among others. The type of the language's number is the least sure of all: LCID is an
// unsigned number of 32 bits under each of the names that it goes by.
DECLARED(acrxSysRegistry, AcRxDictionary* (*)());
DECLARED(acrxBuildClassHierarchy, void (*)());
DECLARED(deleteAcRxClass, void (*)(AcRxClass*));
DECLARED(acrxProductLCID, LCID (*)());
GIVES(AcRxObject*, a<const AcRxDictionary>().at(L""));
GIVES(AcRxDynamicLinker*, acrxDynamicLinker);
GIVES(AcEdCommandStack*, acedRegCmds);
DECLARED(AcRxDynamicLinker::unlockApplication, bool (AcRxDynamicLinker::*)(void*) const);
DECLARED(AcRxDynamicLinker::registerAppMDIAware, bool (AcRxDynamicLinker::*)(void*) const);
DECLARED(AcEdCommandStack::addCommand,
         Status (AcEdCommandStack::*)(const ACHAR*, const ACHAR*, const ACHAR*, Adesk::Int32,
                                      AcRxFunctionPtr, AcEdUIContext*, int, HINSTANCE,
                                      AcEdCommand**));
DECLARED(AcEdCommandStack::removeCmd, Status (AcEdCommandStack::*)(const ACHAR*, const ACHAR*));
DECLARED(acrxEntryPoint, AcRx::AppRetCode (*)(AcRx::AppMsgCode, void*));

// Documents.
GIVES(AcApDocManager*, acDocManager);
DECLARED(AcApDocManager::pushResourceHandle, void (AcApDocManager::*)(HINSTANCE));
DECLARED(AcApDocManager::popResourceHandle, void (AcApDocManager::*)());
DECLARED(AcApDocManager::addReactor, void (AcApDocManager::*)(AcApDocManagerReactor*));
DECLARED(AcApDocManager::removeReactor, void (AcApDocManager::*)(AcApDocManagerReactor*));
DECLARED(AcApDocManagerReactor::documentToBeDestroyed,
         void (AcApDocManagerReactor::*)(AcApDocument*));
CONSTRUCTED(AcAxDocLock, AcAxDocLock::DocLockType);
GIVES(Status, a<const AcAxDocLock>().lockStatus());

// The database, its tables and groups.
DECLARED(acdbHostApplicationServices, AcDbHostApplicationServices* (*)());
DECLARED(AcDbHostApplicationServices::workingDatabase,
         AcDbDatabase* (AcDbHostApplicationServices::*)() const);
DECLARED(AcDbDatabase::getBlockTable, Status (AcDbDatabase::*)(AcDbBlockTable*&, AcDb::OpenMode));
DECLARED(AcDbDatabase::getGroupDictionary,
         Status (AcDbDatabase::*)(AcDbDictionary*&, AcDb::OpenMode));
DECLARED(AcDbDatabase::textstyle, AcDbObjectId (AcDbDatabase::*)() const);
DECLARED(AcDbObjectId::kNull, const AcDbObjectId*);
DECLARED(AcDbDictionary::setAt,
         Status (AcDbDictionary::*)(const ACHAR*, AcDbObject*, AcDbObjectId&));
DECLARED(AcDbBlockTableRecord::appendAcDbEntity,
         Status (AcDbBlockTableRecord::*)(AcDbObjectId&, AcDbEntity*));
DECLARED(AcDbLayerTableRecord::setIsFrozen, Status (AcDbLayerTableRecord::*)(bool));
DECLARED(AcDbLayerTableRecord::setIsLocked, void (AcDbLayerTableRecord::*)(bool));
DECLARED(AcDbLayerTableRecord::setIsOff, void (AcDbLayerTableRecord::*)(bool));
DECLARED(AcDbSymbolTableRecord::getName, Status (AcDbSymbolTableRecord::*)(ACHAR*&) const);
DECLARED(AcDbSymbolTableRecord::getName, Status (AcDbSymbolTableRecord::*)(const ACHAR*&) const);
DECLARED(AcDbTextStyleTableRecord::obliquingAngle, double (AcDbTextStyleTableRecord::*)() const);
DECLARED(AcDbTextStyleTableRecord::xScale, double (AcDbTextStyleTableRecord::*)() const);
DECLARED(AcDbSymbolTable::getAt,
         Status (AcDbSymbolTable::*)(const ACHAR*, AcDbObjectId&, bool) const);
GIVES(Status,
      a<const AcDbBlockTable>().getAt(L"", a<AcDbBlockTableRecord*>(), AcDb::kForWrite, false));
GIVES(Status, a<const AcDbTextStyleTable>().getAt(L"", a<AcDbObjectId>(), false));
GIVES(Status,
      a<const AcDbTextStyleTable>().newIterator(a<AcDbTextStyleTableIterator*>(), true, true));
GIVES(Status, a<const AcDbTextStyleTableIterator>().getRecord(a<AcDbTextStyleTableRecord*>(),
                                                              AcDb::kForRead, false));
DECLARED(AcDbSymbolTableIterator::start, void (AcDbSymbolTableIterator::*)(bool, bool));
DECLARED(AcDbSymbolTableIterator::step, void (AcDbSymbolTableIterator::*)(bool, bool));
DECLARED(AcDbSymbolTableIterator::done, bool (AcDbSymbolTableIterator::*)() const);
CONSTRUCTED(AcDbObjectPointer<AcDbTextStyleTableRecord>, AcDbObjectId, AcDb::OpenMode, bool, bool);
CONSTRUCTED(AcDbSymbolTablePointer<AcDbLinetypeTable>, AcDbDatabase*, AcDb::OpenMode);
CONSTRUCTED(AcDbSymbolTableRecordPointer<AcDbLayerTableRecord>, const ACHAR*, AcDbDatabase*,
            AcDb::OpenMode, bool);
GIVES(Status, a<AcDbSymbolTableRecordPointer<AcDbLayerTableRecord>>().openStatus());
GIVES(Status, a<AcDbSymbolTableRecordPointer<AcDbLayerTableRecord>>().close());
CONSTRUCTED(AcDbGroup, const ACHAR*, bool);
DECLARED(AcDbGroup::append, Status (AcDbGroup::*)(const AcDbObjectId&));

// Objects and entities. Adesk::Boolean is an int in this release.
GIVES(int, Adesk::Boolean());
DECLARED(acdbOpenAcDbEntity, Status (*)(AcDbEntity*&, AcDbObjectId, AcDb::OpenMode, bool));
DECLARED(AcDbObject::objectId, AcDbObjectId (AcDbObject::*)() const);
DECLARED(AcDbObject::upgradeOpen, Status (AcDbObject::*)());
DECLARED(AcDbObject::close, Status (AcDbObject::*)());
DECLARED(AcDbObject::erase, Status (AcDbObject::*)(Adesk::Boolean));
DECLARED(AcDbEntity::setDatabaseDefaults, void (AcDbEntity::*)());
DECLARED(AcDbEntity::setColorIndex, Status (AcDbEntity::*)(Adesk::UInt16, Adesk::Boolean));
DECLARED(AcDbEntity::setLayer, Status (AcDbEntity::*)(const ACHAR*, Adesk::Boolean, bool));
DECLARED(AcDbEntity::setLinetype, Status (AcDbEntity::*)(const ACHAR*, Adesk::Boolean));
DECLARED(AcDbEntity::setLineWeight, Status (AcDbEntity::*)(AcDb::LineWeight, Adesk::Boolean));
DECLARED(AcDbEntity::setVisibility, Status (AcDbEntity::*)(AcDb::Visibility, Adesk::Boolean));
DECLARED(AcDb2dPolyline::setVisibility,
         Status (AcDb2dPolyline::*)(AcDb::Visibility, Adesk::Boolean));
DECLARED(AcDbEntity::draw, Status (AcDbEntity::*)());
DECLARED(AcDbEntity::transformBy, Status (AcDbEntity::*)(const AcGeMatrix3d&));
DECLARED(AcDbLine::transformBy, Status (AcDbLine::*)(const AcGeMatrix3d&));
DECLARED(AcDbEntity::getStretchPoints, Status (AcDbEntity::*)(AcGePoint3dArray&) const);
DECLARED(AcDbLine::intersectWith,
         Status (AcDbLine::*)(const AcDbEntity*, AcDb::Intersect, AcGePoint3dArray&,
                              Adesk::GsMarker, Adesk::GsMarker) const);
DECLARED(AcDbCurve::getClosestPointTo,
         Status (AcDbCurve::*)(const AcGePoint3d&, AcGePoint3d&, Adesk::Boolean) const);
CONSTRUCTED(AcDbLine, const AcGePoint3d&, const AcGePoint3d&);
CONSTRUCTED(AcDb2dPolyline, AcDb::Poly2dType, AcGePoint3dArray&, double, Adesk::Boolean, double,
            double, AcGeDoubleArray*, AcArray<Adesk::Int32>*);
DECLARED(AcDb2dPolyline::makeClosed, Status (AcDb2dPolyline::*)());
DECLARED(AcDb2dPolyline::setLinetypeGenerationOn, Status (AcDb2dPolyline::*)());
CONSTRUCTED(AcDbText);
DECLARED(AcDbText::setTextStyle, Status (AcDbText::*)(AcDbObjectId));
DECLARED(AcDbText::setOblique, Status (AcDbText::*)(double));
DECLARED(AcDbText::setWidthFactor, Status (AcDbText::*)(double));
DECLARED(AcDbText::setHeight, Status (AcDbText::*)(double));
DECLARED(AcDbText::setRotation, Status (AcDbText::*)(double));
DECLARED(AcDbText::setTextString, Status (AcDbText::*)(const ACHAR*));
DECLARED(AcDbText::setVerticalMode, Status (AcDbText::*)(AcDb::TextVertMode));
DECLARED(AcDbText::setHorizontalMode, Status (AcDbText::*)(AcDb::TextHorzMode));
DECLARED(AcDbText::setPosition, Status (AcDbText::*)(const AcGePoint3d&));
DECLARED(AcDbText::setAlignmentPoint, Status (AcDbText::*)(const AcGePoint3d&));
CONSTRUCTED(AcDbMPolygon);
DECLARED(AcDbMPolygon::appendLoopFromBoundary,
         Status (AcDbMPolygon::*)(const AcDb2dPolyline*, bool, double));
DECLARED(AcDbMPolygon::isPointInsideMPolygon,
         int (AcDbMPolygon::*)(const AcGePoint3d&, AcGeIntArray&, double) const);

// Geometry.
DECLARED(AcGeContext::gTol, AcGeTol*);
DECLARED(AcGePoint3d::kOrigin, const AcGePoint3d*);
DECLARED(AcGeVector3d::kZAxis, const AcGeVector3d*);
DECLARED(AcGeMatrix3d::planeToWorld, AcGeMatrix3d (*)(const AcGeVector3d&));
DECLARED(AcGeMatrix3d::rotation, AcGeMatrix3d (*)(double, const AcGeVector3d&, const AcGePoint3d&));
DECLARED(AcGeMatrix3d::setTranslation, AcGeMatrix3d& (AcGeMatrix3d::*)(const AcGeVector3d&));
DECLARED(AcGeMatrix3d::operator*, AcGeMatrix3d (AcGeMatrix3d::*)(const AcGeMatrix3d&) const);
GIVES(double, a<const AcGePoint3d>().distanceTo(a<const AcGePoint3d>()));
GIVES(bool, a<const AcGePoint3d>().isEqualTo(a<const AcGePoint3d>(), a<const AcGeTol>()));
GIVES(double, a<const AcGeVector3d>().angleTo(a<const AcGeVector3d>()));
GIVES(double, a<const AcGeVector3d>().angleTo(a<const AcGeVector3d>(), a<const AcGeVector3d>()));
GIVES(double, a<const AcGeLineSeg3d>().distanceTo(a<const AcGePoint3d>(), a<const AcGeTol>()));
GIVES(double*, asDblArray(a<AcGePoint3d>()));
GIVES(const double*, asDblArray(a<const AcGePoint3d>()));
GIVES(int, a<AcGePoint3dArray>().append(a<const AcGePoint3d>()));

// Dialogs of the host.
DECLARED(InitAcUiDLL, void (*)());
CONSTRUCTED(CAcUiDialog, UINT, CWnd*, HINSTANCE);
DECLARED(CAcUiDialog::BeginEditorCommand, void (CAcUiDialog::*)());
DECLARED(CAcUiDialog::CompleteEditorCommand, void (CAcUiDialog::*)(BOOL));
DECLARED(CAcUiDialog::CancelEditorCommand, void (CAcUiDialog::*)());
DECLARED(CAcUiColorComboBox::AddColorToMRU, int (CAcUiColorComboBox::*)(int));
GIVES(int, a<CAcUiColorComboBox>().GetCurrentItemColorIndex());
CONSTRUCTED(CAcUiColorComboBox);
CONSTRUCTED(CAcUiMRUComboBox);
CONSTRUCTED(CAdUiBitmapButton, LPCTSTR);
DECLARED(CAdUiBitmapButton::SetAutoSizeToBitmap, void (CAdUiBitmapButton::*)(BOOL));
DECLARED(CAdUiOwnerDrawButton::AutoLoad, BOOL (CAdUiOwnerDrawButton::*)());

// MFC.
CONSTRUCTED(CDynLinkLibrary, AFX_EXTENSION_MODULE&);
DECLARED(AfxInitExtensionModule, BOOL (*)(AFX_EXTENSION_MODULE&, HMODULE));
GIVES(void, AfxTermExtensionModule(a<AFX_EXTENSION_MODULE>()));
DECLARED(DDX_Control, void (*)(CDataExchange*, int, CWnd&));
CONSTRUCTED(CWnd);
DECLARED(CWnd::FromHandle, CWnd* (*)(HWND));
DECLARED(CWnd::GetDlgItem, CWnd* (CWnd::*)(int) const);
DECLARED(CWnd::SetWindowText, void (CWnd::*)(LPCTSTR));
DECLARED(CWnd::SetDlgItemText, void (CWnd::*)(int, LPCTSTR));
DECLARED(CWnd::GetDlgItemText, int (CWnd::*)(int, CString&) const);
DECLARED(CWnd::EnableWindow, BOOL (CWnd::*)(BOOL));
DECLARED(CWnd::CheckDlgButton, void (CWnd::*)(int, UINT));
DECLARED(CWnd::IsDlgButtonChecked, UINT (CWnd::*)(int) const);
DECLARED(CWnd::CheckRadioButton, void (CWnd::*)(int, int, int));
DECLARED(CWnd::SendDlgItemMessage, LRESULT (CWnd::*)(int, UINT, WPARAM, LPARAM));
DECLARED(CDialog::DoModal, INT_PTR (CDialog::*)());
DECLARED(CDialog::OnInitDialog, BOOL (CDialog::*)());
DECLARED(CDialog::GotoDlgCtrl, void (CDialog::*)(CWnd*));
DECLARED(CComboBox::GetCount, int (CComboBox::*)() const);
DECLARED(CComboBox::AddString, int (CComboBox::*)(LPCTSTR));
DECLARED(CComboBox::SetCurSel, int (CComboBox::*)(int));
DECLARED(CComboBox::GetCurSel, int (CComboBox::*)() const);
DECLARED(CComboBox::FindStringExact, int (CComboBox::*)(int, LPCTSTR) const);
DECLARED(CComboBox::GetLBText, void (CComboBox::*)(int, CString&) const);

// Texts. Some members return a reference to the text itself, which is not needed here.
CONSTRUCTED(CString);
CONSTRUCTED(CString, LPCTSTR);
CONSTRUCTED(CString, const CString&);
DECLARED(CString::operator=, CString& (CString::*)(const CString&));
DECLARED(CString::Empty, void (CString::*)());
DECLARED(CString::GetLength, int (CString::*)() const);
DECLARED(CString::GetString, LPCTSTR (CString::*)() const);
DECLARED(CString::SetAt, void (CString::*)(int, wchar_t));
DECLARED(CString::Format, void (CString::*)(LPCTSTR, ...));
DECLARED(CString::Replace, int (CString::*)(wchar_t, wchar_t));
DECLARED(CString::CompareNoCase, int (CString::*)(LPCTSTR) const);
DECLARED(CString::Find, int (CString::*)(wchar_t, int) const);
DECLARED(CString::ReverseFind, int (CString::*)(wchar_t) const);
DECLARED(CString::Left, CString (CString::*)(int) const);
DECLARED(CString::Mid, CString (CString::*)(int) const);
DECLARED(CString::Mid, CString (CString::*)(int, int) const);
DECLARED(CString::TrimLeft, CString& (CString::*)(LPCTSTR));
DECLARED(CString::TrimRight, CString& (CString::*)(LPCTSTR));
DECLARED(CString::operator=, CString& (CString::*)(LPCTSTR));
DECLARED(CString::operator+=, CString& (CString::*)(LPCTSTR));
DECLARED(CString::operator+=, CString& (CString::*)(wchar_t));
DECLARED(operator+, CString (*)(const CString&, const CString&));
DECLARED(operator+, CString (*)(const CString&, LPCTSTR));
DECLARED(operator+, CString (*)(LPCTSTR, const CString&));

// Windows and its C runtime.
DECLARED(GetModuleFileNameW, DWORD (*)(HMODULE, LPWSTR, DWORD));
DECLARED(LCIDToLocaleName, int (*)(LCID, LPWSTR, int, DWORD));
DECLARED(LoadStringW, int (*)(HINSTANCE, UINT, LPWSTR, int));
DECLARED(MessageBoxW, int (*)(HWND, LPCWSTR, LPCWSTR, UINT));
DECLARED(GetFocus, HWND (*)());
DECLARED(SetFocus, HWND (*)(HWND));
DECLARED(SetForegroundWindow, BOOL (*)(HWND));
DECLARED(StrToIntW, int (*)(PCWSTR));
DECLARED(_wfopen, FILE* (*)(const wchar_t*, const wchar_t*));
DECLARED(_wtof, double (*)(const wchar_t*));
DECLARED(_wcsicmp, int (*)(const wchar_t*, const wchar_t*));
GIVES(wint_t, fgetwc(a<FILE*>()));
GIVES(int, fwprintf(a<FILE*>(), L"%s", L""));
GIVES(int, fclose(a<FILE*>()));
