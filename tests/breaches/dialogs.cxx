// Breaks the rules about dialogs and windows. The button of the panel is pressed by the script.
#include <memory>

#include <dlfcn.h>

#include "acedads.h"
#include "rulebreaker.h"
#include "tests/dialogs/panel.h"

namespace
{
AFX_EXTENSION_MODULE extension = {nullptr, nullptr};

// Shows a panel whose button does it.
void atThePick(void (*action)(Panel& panel))
{
    Panel panel;
    panel.onPick = [&] { action(panel); };
    panel.DoModal();
}

void ask()
{
    acedAlert(L"Not asked");
    ads_point point;
    acedGetPoint(nullptr, L"\nPoint: ", point);
}

void askUnderADialog()
{
    atThePick([](Panel&) { ask(); });
}

void destroyShown()
{
    atThePick([](Panel& panel) { ::DestroyWindow(panel.m_hWnd); });
}

void stepAsideForGood()
{
    atThePick([](Panel& panel) { panel.BeginEditorCommand(); });
}

void hide()
{
    atThePick([](Panel& panel) { panel.ShowWindow(SW_HIDE); });
}

void stepAsideTwice()
{
    atThePick(
        [](Panel& panel)
        {
            panel.BeginEditorCommand();
            panel.BeginEditorCommand();
        });
}

void comeBackFromNowhere()
{
    atThePick([](Panel& panel) { panel.CompleteEditorCommand(); });
}

void cancelNothing()
{
    atThePick([](Panel& panel) { panel.CancelEditorCommand(); });
}

// The dialog ends before it is shown, so only its end can notice the breach.
void endAside()
{
    Panel panel;
    panel.onInit = [&]
    {
        panel.BeginEditorCommand();
        panel.EndDialog(IDOK);
    };
    panel.DoModal();
}

void exchangeMissing()
{
    Panel panel;
    CWnd missing;
    panel.onInit = [&]
    {
        CDataExchange exchange(&panel, FALSE);
        DDX_Control(&exchange, 999, missing);
    };
    panel.DoModal();
}

void useNoWindow()
{
    CWnd none;
    none.SetWindowText(L"nobody reads it");
}

void attachOther()
{
    atThePick([](Panel& panel) { panel.Attach(panel.GetDlgItem(Panel::step)->m_hWnd); });
}

void attachTaken()
{
    atThePick(
        [](Panel& panel)
        {
            CWnd second;
            second.Attach(panel.m_hWnd);
        });
}

std::unique_ptr<Panel> lastPanel;

// The module is then unloaded at the end of the process, when no user can answer any more.
void showAtTheEnd()
{
    lastPanel = std::make_unique<Panel>();
    Dl_info info;
    dladdr(&extension, &info);
    dlopen(info.dli_fname, RTLD_NOW);
}

const Rule rules[] = {
    {L"ASKUNDER", askUnderADialog},  {L"DESTROY", destroyShown},
    {L"ASIDE", stepAsideForGood},    {L"HIDE", hide},
    {L"ASIDETWICE", stepAsideTwice}, {L"COMEBACK", comeBackFromNowhere},
    {L"CANCEL", cancelNothing},      {L"ENDASIDE", endAside},
    {L"EXCHANGE", exchangeMissing},  {L"NOWINDOW", useNoWindow},
    {L"ATTACHOTHER", attachOther},   {L"ATTACHTAKEN", attachTaken},
    {L"DIALOGATEND", showAtTheEnd},
};
}  // namespace

extern "C" BOOL APIENTRY DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_DETACH && lastPanel)
    {
        lastPanel->DoModal();
    }
    return join(extension, module, reason);
}

extern "C" AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void*)
{
    if (message == AcRx::kInitAppMsg)
    {
        offer(rules, extension.hModule);
    }
    if (message == AcRx::kUnloadAppMsg)
    {
        takeBack();
    }
    return AcRx::kRetOK;
}
