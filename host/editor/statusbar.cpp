#include "host/editor/editor.h"
#include "rxmfcapi.h"

using host::Editor;

int acedSetStatusBarProgressMeter(const ACHAR* pszLabel, int nMinPos, int nMaxPos)
{
    Editor* editor = Editor::current();
    if (editor == nullptr || nMinPos > nMaxPos)
    {
        return -1;
    }
    const host::Meter meter{pszLabel ? pszLabel : L"", nMinPos, nMaxPos, nMinPos};
    editor->traceLine(L"[meter] " + meter.label + L" " + std::to_wstring(nMinPos) + L".." +
                      std::to_wstring(nMaxPos));
    editor->setMeter(meter);
    return 0;
}

int acedSetStatusBarProgressMeterPos(int nPos)
{
    Editor* editor = Editor::current();
    if (editor == nullptr || !editor->meter())
    {
        return -1;
    }
    host::Meter meter = *editor->meter();
    meter.position = nPos < 0 ? meter.position - nPos : nPos;
    editor->traceLine(L"[meter] " + std::to_wstring(meter.position));
    editor->setMeter(meter);
    return 0;
}

void acedRestoreStatusBar()
{
    Editor* editor = Editor::current();
    if (editor == nullptr || !editor->meter())
    {
        return;
    }
    editor->setMeter(std::nullopt);
    editor->traceLine(L"[meter] restored");
}
