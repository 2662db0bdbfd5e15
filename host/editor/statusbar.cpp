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
    editor->meter = host::Meter{pszLabel ? pszLabel : L"", nMinPos, nMaxPos, nMinPos};
    editor->traceLine(L"[meter] " + editor->meter->label + L" " + std::to_wstring(nMinPos) + L".." +
                      std::to_wstring(nMaxPos));
    editor->showMeter();
    return 0;
}

int acedSetStatusBarProgressMeterPos(int nPos)
{
    Editor* editor = Editor::current();
    if (editor == nullptr || !editor->meter)
    {
        return -1;
    }
    int& position = editor->meter->position;
    position = nPos < 0 ? position - nPos : nPos;
    editor->traceLine(L"[meter] " + std::to_wstring(position));
    editor->showMeter();
    return 0;
}

void acedRestoreStatusBar()
{
    Editor* editor = Editor::current();
    if (editor == nullptr || !editor->meter)
    {
        return;
    }
    editor->meter.reset();
    editor->showMeter();
    editor->traceLine(L"[meter] restored");
}
