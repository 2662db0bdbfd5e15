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
    editor->meter = host::Meter{nMinPos};
    editor->traceLine(L"[meter] " + std::wstring(pszLabel ? pszLabel : L"") + L" " +
                      std::to_wstring(nMinPos) + L".." + std::to_wstring(nMaxPos));
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
    editor->traceLine(L"[meter] restored");
}
