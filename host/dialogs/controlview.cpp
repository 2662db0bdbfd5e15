#include "host/dialogs/controlview.h"

#include <algorithm>
#include <utility>

#include "host/dialogs/controlplace.h"
#include "host/dialogs/wnd.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"
#include "host/text/foldcase.h"

namespace host
{
namespace
{
ControlKind kindOfButton(DWORD style)
{
    switch (style & BS_TYPEMASK)
    {
        case BS_GROUPBOX:
            return ControlKind::group;
        case BS_AUTOCHECKBOX:
            return ControlKind::check;
        case BS_AUTORADIOBUTTON:
            return ControlKind::radio;
        default:
            return ControlKind::button;
    }
}

ControlKind kindOfStatic(DWORD style)
{
    const DWORD type = style & SS_TYPEMASK;
    const bool etched = type == SS_ETCHEDHORZ || type == SS_ETCHEDVERT || type == SS_ETCHEDFRAME;
    return etched ? ControlKind::line : ControlKind::label;
}

bool isChecked(HWND control)
{
    return SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

std::wstring stateOf(HWND control, ControlKind kind)
{
    switch (kind)
    {
        case ControlKind::check:
        case ControlKind::radio:
            return isChecked(control) ? L"checked" : L"unchecked";
        case ControlKind::combo:
            return L"selected=" + std::to_wstring(SendMessageW(control, CB_GETCURSEL, 0, 0));
        default:
            return L"-";
    }
}

// Returns an edit's text in brackets. The banner follows if the edit is empty, because the banner
// says what to type.
std::wstring editValue(HWND edit, const std::wstring& text)
{
    wchar_t banner[64] = L"";
    SendMessageW(edit, EM_GETCUEBANNER, reinterpret_cast<WPARAM>(banner), 64);
    const bool hint = text.empty() && *banner != L'\0';
    return L"[" + text + L"]" + (hint ? L" " + std::wstring(banner) : L"");
}

std::wstring itemText(HWND list, LRESULT index)
{
    std::wstring text(std::max<LRESULT>(SendMessageW(list, CB_GETLBTEXTLEN, WPARAM(index), 0), 0),
                      L'\0');
    SendMessageW(list, CB_GETLBTEXT, WPARAM(index), reinterpret_cast<LPARAM>(text.data()));
    return text;
}

// Returns the list's text and its items. A long list names its first items only.
std::wstring comboValue(HWND list, const std::wstring& text)
{
    const LRESULT most = 16;
    const LRESULT count = SendMessageW(list, CB_GETCOUNT, 0, 0);
    std::wstring items;
    for (LRESULT i = 0; i < std::min(count, most); ++i)
    {
        items += (i > 0 ? L", " : L"") + itemText(list, i);
    }
    if (count > most)
    {
        items = own(L"%1 and %2 more", {items, std::to_wstring(count - most)});
    }
    const std::wstring value = L"[" + text + L"]";
    return count > 0 ? own(L"%1  one of: %2", {value, items}) : value;
}

std::wstring valueOf(HWND control, ControlKind kind)
{
    const std::wstring text = shownName(control);
    switch (kind)
    {
        case ControlKind::edit:
            return editValue(control, text);
        case ControlKind::combo:
            return comboValue(control, text);
        case ControlKind::check:
            return (isChecked(control) ? L"[x] " : L"[ ] ") + text;
        case ControlKind::radio:
            return (isChecked(control) ? L"(*) " : L"( ) ") + text;
        case ControlKind::button:
            return L"<" + text + L">";
        case ControlKind::group:
            return L"--- " + std::wstring(trimmed(text)) + L" ---";
        default:
            return text;
    }
}

// Builds the readable view line by line. A label shares the line of the field that follows it.
class ReadableView
{
public:
    void add(HWND control);
    std::wstring text();

private:
    void putLine(HWND control, const std::wstring& contents);
    void putLabel();

    std::wstring m_text;
    HWND m_label = nullptr;  // a label whose field may follow
};

void ReadableView::add(HWND control)
{
    const ControlKind kind = kindOf(control);
    const bool field = kind == ControlKind::edit || kind == ControlKind::combo;
    if (field && m_label != nullptr)
    {
        putLine(control,
                windowText(std::exchange(m_label, nullptr)) + L" " + valueOf(control, kind));
        return;
    }
    putLabel();
    if (kind == ControlKind::label)
    {
        m_label = control;
    }
    else if (kind != ControlKind::line)
    {
        putLine(control, valueOf(control, kind));
    }
}

std::wstring ReadableView::text()
{
    putLabel();
    return m_text;
}

// Adds a line; "-" marks a disabled control.
void ReadableView::putLine(HWND control, const std::wstring& contents)
{
    const std::wstring id = std::to_wstring(GetDlgCtrlID(control));
    m_text += (IsWindowEnabled(control) ? L"  " : L"- ") +
              std::wstring(4 - std::min<std::size_t>(id.size(), 4), L' ') + id + L"  " + contents +
              L"\n";
}

void ReadableView::putLabel()
{
    if (const HWND label = std::exchange(m_label, nullptr))
    {
        putLine(label, windowText(label));
    }
}
}  // namespace

ControlKind kindOf(HWND control)
{
    wchar_t name[64] = L"";
    GetClassNameW(control, name, 64);
    const auto style = DWORD(GetWindowLongW(control, GWL_STYLE));
    if (equalNoCase(name, L"Button"))
    {
        return kindOfButton(style);
    }
    if (equalNoCase(name, L"Edit"))
    {
        return ControlKind::edit;
    }
    return equalNoCase(name, L"ComboBox") ? ControlKind::combo : kindOfStatic(style);
}

OwnText nameOf(ControlKind kind)
{
    static const OwnText names[] = {L"edit",  L"button", L"check", L"radio",
                                    L"combo", L"label",  L"group", L"line"};
    return names[int(kind)];
}

std::wstring controlLine(HWND control)
{
    const ControlKind kind = kindOf(control);
    return L"[control] " + std::to_wstring(GetDlgCtrlID(control)) + L" " + nameOf(kind).english() +
           (IsWindowEnabled(control) ? L" enabled " : L" disabled ") + stateOf(control, kind) +
           L" \"" + windowText(control) + L"\"";
}

std::wstring readableView(HWND dialog)
{
    ReadableView view;
    for (HWND control = GetWindow(dialog, GW_CHILD); control;
         control = GetWindow(control, GW_HWNDNEXT))
    {
        if (IsWindowVisible(control))
        {
            view.add(control);
        }
    }
    return view.text() + own(L"set ID TEXT, check ID on|off, click ID, select ID TEXT or #N, color "
                             L"ID N, show, close; "
                             L"Enter presses OK, ^C cancels");
}
}  // namespace host
