#include "tests/command/scriptededitor.h"

#include <gtest/gtest.h>

#include <cstdarg>
#include <cstring>
#include <utility>

#include "app/entry.h"
#include "command/gridcommand.h"
#include "host/database/packing.h"
#include "host/database/nothingopen.h"
#include "host/documents/documentmanager.h"
#include "host/dxf/drawingfile.h"
#include "host/windows/format.h"
#include "tests/app/original.h"
#include "tests/settings/modulepath.h"

namespace
{
ScriptedEditor* current = nullptr;

std::wstring promptCall(const wchar_t* kind, const ACHAR* prompt)
{
    return std::wstring(kind) + L" " + std::exchange(current->options, L"[]") + L" " + prompt;
}

int* variable(const ACHAR* name)
{
    if (std::wcscmp(name, L"UCSICON") == 0)
    {
        return &current->icon;
    }
    return std::wcscmp(name, L"UCSFOLLOW") == 0 ? &current->follow : nullptr;
}

void setPoint(ads_point result, const AcGePoint3d& point)
{
    std::memcpy(result, asDblArray(point), sizeof(ads_point));
}

bool convert(const AcGeMatrix3d& matrix, const ads_point from, ads_point to, bool displacement)
{
    AcGePoint3d point = asPnt3d(from);
    point.transformBy(matrix);
    setPoint(to, displacement ? point - matrix.translation() : point);
    return true;
}
}  // namespace

ScriptedAnswer point(double x, double y, double z)
{
    return {.result = RTNORM, .point = AcGePoint3d(x, y, z), .text = L""};
}

ScriptedAnswer text(int result, const wchar_t* text)
{
    return {.result = result, .point = AcGePoint3d(), .text = text};
}

ScriptedAnswer code(int result)
{
    return {.result = result, .point = AcGePoint3d(), .text = L""};
}

ScriptedEditor::ScriptedEditor()
    : database(host::documents().open(host::newDrawing()).database()), options(L"[]")
{
    current = this;
}

ScriptedEditor::~ScriptedEditor()
{
    current = nullptr;
    host::documents().close();
}

std::wstring ScriptedEditor::modulePath() const
{
    const CString& beside =
        settingsFolderIsMissing ? settings.pathInMissingFolder() : settings.path();
    std::wstring path = beside.GetString();
    return path.replace(path.find_last_of(L"/\\"), std::wstring::npos, L"\\netrax.arx");
}

void ScriptedEditor::run(std::deque<ScriptedAnswer> answers)
{
    const ModulePath path(modulePath());
    m_answers = std::move(answers);
    gridCommand(attachedModule());
    EXPECT_TRUE(m_answers.empty());
    host::requireNothingOpen(*database, "gridCommand");
}

ScriptedAnswer ScriptedEditor::next(const std::wstring& call)
{
    log.push_back(call);
    if (m_answers.empty())
    {
        ADD_FAILURE() << "asked once too often";
        return code(RTCAN);
    }
    ScriptedAnswer answer = m_answers.front();
    m_answers.pop_front();
    if (answer.look)
    {
        answer.look();
    }
    lastText = answer.text;
    return answer;
}

Contents ScriptedEditor::contents() const
{
    Contents contents;
    const host::ObjectStore& stubs = host::coreOf(*database).objects();
    for (std::size_t i = 0; i < stubs.size(); ++i)
    {
        AcDbStub& stub = stubs[i];
        const AcRxClass* type = stub.erased() ? nullptr : host::typeOf(&stub);
        contents.lines += type == AcDbLine::desc();
        contents.outlines += type == AcDb2dPolyline::desc();
        contents.texts += type == AcDbText::desc();
        AcDbGroup* group = nullptr;
        if (type == AcDbGroup::desc() &&
            acdbOpenObject(group, AcDbObjectId(&stub), AcDb::kForRead) == Acad::eOk)
        {
            contents.groups.push_back(group->numEntities());
            group->close();
        }
    }
    return contents;
}

// The following functions replace the host's. Without an editor they pass the call on.

// The dialog's table of virtual functions points here. A program cannot replace a function that the
// host's library calls within itself, such as CDialog::DoModal: the library is optimised as a
// whole.
INT_PTR CAdUiBaseDialog::DoModal()
{
    if (current == nullptr)
    {
        return original<INT_PTR(CAdUiBaseDialog*)>("_ZN15CAdUiBaseDialog7DoModalEv")(this);
    }
    current->log.push_back(L"dialog");
    EXPECT_EQ(host::documents().document()->resources().depth(), 1u);
    EXPECT_EQ(AfxGetResourceHandle(), attachedModule());
    INT_PTR result = IDCANCEL;
    if (current->userOfDialog)
    {
        current->userOfDialog(*this);
        result = IDOK;
    }
    return result;
}

int acedInitGet(int bits, const ACHAR* keywords)
{
    if (current == nullptr)
    {
        return original<int(int, const ACHAR*)>("_Z11acedInitGetiPKw")(bits, keywords);
    }
    current->options = L"[" + std::to_wstring(bits) + L" " + keywords + L"]";
    return RTNORM;
}

int acedGetPoint(const ads_point base, const ACHAR* prompt, ads_point result)
{
    if (current == nullptr)
    {
        return original<int(const double*, const ACHAR*, double*)>("_Z12acedGetPointPKdPKwPd")(
            base, prompt, result);
    }
    EXPECT_EQ(base, nullptr);
    const ScriptedAnswer answer = current->next(promptCall(L"point", prompt));
    if (answer.result == RTNORM)
    {
        setPoint(result, answer.point);
    }
    return answer.result;
}

int acedGetCorner(const ads_point base, const ACHAR* prompt, ads_point result)
{
    if (current == nullptr)
    {
        return original<int(const double*, const ACHAR*, double*)>("_Z13acedGetCornerPKdPKwPd")(
            base, prompt, result);
    }
    const std::wstring from = std::to_wstring(base[X]) + L"," + std::to_wstring(base[Y]);
    const ScriptedAnswer answer =
        current->next(promptCall((L"corner from " + from).c_str(), prompt));
    if (answer.result == RTNORM)
    {
        setPoint(result, answer.point);
    }
    return answer.result;
}

int acedGetKword(const ACHAR* prompt, ACHAR* result)
{
    if (current == nullptr)
    {
        return original<int(const ACHAR*, ACHAR*)>("_Z12acedGetKwordPKwPw")(prompt, result);
    }
    const ScriptedAnswer answer = current->next(promptCall(L"keyword", prompt));
    std::wcscpy(result, answer.text.c_str());
    return answer.result;
}

int acedGetInput(ACHAR* text)
{
    if (current == nullptr)
    {
        return original<int(ACHAR*)>("_Z12acedGetInputPw")(text);
    }
    std::wcscpy(text, current->lastText.c_str());
    return current->inputCannotBeRead ? RTERROR : RTNORM;
}

int acedGetVar(const ACHAR* name, resbuf* result)
{
    if (current == nullptr)
    {
        return original<int(const ACHAR*, resbuf*)>("_Z10acedGetVarPKwP6resbuf")(name, result);
    }
    if (current->unreadable.contains(name))
    {
        return RTERROR;
    }
    if (const int* value = variable(name))
    {
        result->restype = RTSHORT;
        result->resval.rint = static_cast<short>(*value);
        return RTNORM;
    }
    const bool twist = std::wcscmp(name, L"VIEWTWIST") == 0;
    result->restype = twist ? RTREAL : RT3DPOINT;
    const AcGeVector3d origin = current->ucs.translation();
    setPoint(result->resval.rpoint, std::wcscmp(name, L"UCSORG") == 0
                                        ? AcGePoint3d(origin.x, origin.y, origin.z)
                                        : AcGePoint3d(0, 0, twist ? 0 : 1));
    return RTNORM;
}

int acedSetVar(const ACHAR* name, const resbuf* value)
{
    if (current == nullptr)
    {
        return original<int(const ACHAR*, const resbuf*)>("_Z10acedSetVarPKwPK6resbuf")(name,
                                                                                        value);
    }
    EXPECT_EQ(value->restype, RTSHORT);
    *variable(name) = value->resval.rint;
    current->log.push_back(std::wstring(name) + L"=" + std::to_wstring(value->resval.rint));
    return RTNORM;
}

Acad::ErrorStatus acedGetCurrentUCS(AcGeMatrix3d& matrix)
{
    if (current == nullptr)
    {
        return original<Acad::ErrorStatus(AcGeMatrix3d&)>("_Z17acedGetCurrentUCSR12AcGeMatrix3d")(
            matrix);
    }
    if (current->placing)
    {
        current->placing();
    }
    matrix = current->ucs;
    return Acad::eOk;
}

Acad::ErrorStatus acedSetCurrentUCS(const AcGeMatrix3d& matrix)
{
    if (current == nullptr)
    {
        return original<Acad::ErrorStatus(const AcGeMatrix3d&)>(
            "_Z17acedSetCurrentUCSRK12AcGeMatrix3d")(matrix);
    }
    if (current->ucsCannotBeSet)
    {
        return Acad::eInvalidInput;
    }
    current->log.push_back(L"UCS set");
    current->formerUcs.push_back(std::exchange(current->ucs, matrix));
    return Acad::eOk;
}

bool acedRestorePreviousUCS()
{
    if (current == nullptr)
    {
        return original<bool()>("_Z22acedRestorePreviousUCSv")();
    }
    current->log.push_back(L"UCS back");
    if (current->formerUcs.empty())
    {
        return false;
    }
    current->ucs = current->formerUcs.back();
    current->formerUcs.pop_back();
    return true;
}

bool acdbUcs2Wcs(ads_point from, ads_point to, bool displacement)
{
    if (current == nullptr)
    {
        return original<bool(double*, double*, bool)>("_Z11acdbUcs2WcsPdS_b")(from, to,
                                                                              displacement);
    }
    return convert(current->ucs, from, to, displacement);
}

bool acdbWcs2Ucs(ads_point from, ads_point to, bool displacement)
{
    if (current == nullptr)
    {
        return original<bool(double*, double*, bool)>("_Z11acdbWcs2UcsPdS_b")(from, to,
                                                                              displacement);
    }
    return convert(current->ucs.inverse(), from, to, displacement);
}

int acutPrintf(const ACHAR* format, ...)
{
    if (format == nullptr)
    {
        return RTERROR;
    }
    std::va_list arguments;
    va_start(arguments, format);
    const std::wstring text = host::formatWide(format, arguments);
    va_end(arguments);
    if (current == nullptr)
    {
        return original<int(const ACHAR*, ...)>("_Z10acutPrintfPKwz")(L"%s", text.c_str());
    }
    current->said += text;
    if (current->hear)
    {
        current->hear(text);
    }
    return RTNORM;
}

int WINAPI MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type)
{
    if (current == nullptr)
    {
        return original<int(HWND, LPCWSTR, LPCWSTR, UINT)>("MessageBoxW")(owner, text, caption,
                                                                          type);
    }
    EXPECT_EQ(type, UINT(MB_YESNO));
    EXPECT_NE(owner, nullptr);
    EXPECT_EQ(owner, adsw_acadMainWnd());
    current->log.push_back(std::wstring(L"box ") + caption + L": " + text);
    if (current->boxAnswers.empty())
    {
        ADD_FAILURE() << "a message box too many";
        return 0;
    }
    const int button = current->boxAnswers.front();
    current->boxAnswers.pop_front();
    return button;
}

LCID acrxProductLCID()
{
    return current != nullptr ? current->locale : original<LCID()>("_Z15acrxProductLCIDv")();
}
