// A module that tells by message boxes what happens to it; IDNO to "attach" makes it refuse.
// The extension of this file keeps it out of the test program.
#include "afxwin.h"
#include "acui.h"

namespace
{
bool tell(const wchar_t* what)
{
    return MessageBoxW(nullptr, what, L"probe", MB_YESNO) != IDNO;
}

struct Told
{
    explicit Told(const wchar_t* name) : m_name(name) { tell(m_name + CString(L" made")); }
    ~Told() { tell(m_name + CString(L" gone")); }
    const wchar_t* m_name;
};

Told first(L"first object");
AFX_EXTENSION_MODULE extension = {NULL, NULL};
Told second(L"second object");

bool attach(HINSTANCE module)
{
    static Told local(L"local object");
    wchar_t path[521];
    GetModuleFileNameW(module, path, 521);
    tell(path);
    if (!AfxInitExtensionModule(extension, module))
    {
        return false;
    }
    new CDynLinkLibrary(extension);
    InitAcUiDLL();
    return tell(L"attach");
}
}  // namespace

extern "C" int APIENTRY DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        return attach(module);
    }
    if (tell(L"detach"))
    {
        AfxTermExtensionModule(extension);
    }
    return TRUE;
}
