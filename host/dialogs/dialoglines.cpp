#include "host/dialogs/dialoglines.h"

#include <algorithm>

#include "acui.h"
#include "host/dialogs/controlview.h"
#include "host/dialogs/wnd.h"
#include "host/editor/editor.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"
#include "host/text/foldcase.h"

namespace host
{
namespace
{
// Removes the first word and one blank after it from the line, and returns the word.
std::wstring takeWord(std::wstring_view& line)
{
    const std::size_t first = std::min(line.find_first_not_of(L" \t"), line.size());
    const std::size_t end = std::min(line.find_first_of(L" \t", first), line.size());
    const std::wstring word(line.substr(first, end - first));
    line.remove_prefix(std::min(end + 1, line.size()));
    return word;
}

std::wstring numberOf(HWND control)
{
    return std::to_wstring(GetDlgCtrlID(control));
}

void tellDialog(HWND control, WORD code)
{
    SendMessageW(GetParent(control), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code),
                 reinterpret_cast<LPARAM>(control));
}

Result<> set(HWND edit, std::wstring_view text)
{
    SetWindowTextW(edit, std::wstring(text).c_str());
    return Done{};
}

Result<> click(HWND button, std::wstring_view)
{
    SendMessageW(button, BM_CLICK, 0, 0);
    return Done{};
}

Result<> check(HWND button, std::wstring_view text)
{
    const std::wstring_view word = trimmed(text);
    const bool on = equalNoCase(word, L"on");
    if (!on && !equalNoCase(word, L"off"))
    {
        return ownFailure(L"Say on or off: check %1 on", {numberOf(button)});
    }
    const bool checked = SendMessageW(button, BM_GETCHECK, 0, 0) == BST_CHECKED;
    if (kindOf(button) == ControlKind::radio && checked && !on)
    {
        return ownFailure(L"Control %1 goes off only when another button of its group is clicked.",
                          {numberOf(button)});
    }
    return checked == on ? Done{} : click(button, {});
}

Result<> choose(HWND list, LRESULT index, const std::wstring& wanted)
{
    if (index < 0 || index >= SendMessageW(list, CB_GETCOUNT, 0, 0))
    {
        return ownFailure(L"Control %1 has no item %2.", {numberOf(list), wanted});
    }
    SendMessageW(list, CB_SETCURSEL, WPARAM(index), 0);
    tellDialog(list, CBN_SELCHANGE);
    return Done{};
}

Result<> select(HWND list, std::wstring_view text)
{
    const std::wstring wanted(trimmed(text));
    if (wanted.starts_with(L'#'))
    {
        return choose(list, parseInteger(wanted.substr(1)).value_or(-1), wanted);
    }
    const LRESULT index = SendMessageW(list, CB_FINDSTRINGEXACT, WPARAM(-1),
                                       reinterpret_cast<LPARAM>(wanted.c_str()));
    return choose(list, index, L"\"" + wanted + L"\"");
}

// Selects a colour as the host's own colour dialog does: the colour joins the recent colours.
Result<> color(HWND list, std::wstring_view text)
{
    auto* const colors = dynamic_cast<CAcUiColorComboBox*>(objectOf(list));
    if (colors == nullptr)
    {
        return ownFailure(L"Control %1 is no list of colours.", {numberOf(list)});
    }
    const std::wstring wanted(trimmed(text));
    const int index = colors->AddColorToMRU(parseInteger(wanted).value_or(-1));
    return choose(list, index, own(L"for the colour %1", {L"\"" + wanted + L"\""}));
}

struct Verb
{
    const wchar_t* word;
    Result<> (*act)(HWND control, std::wstring_view rest);
    std::initializer_list<ControlKind> kinds;
};

const Verb verbs[] = {
    {L"set", set, {ControlKind::edit}},
    {L"check", check, {ControlKind::check, ControlKind::radio}},
    {L"click", click, {ControlKind::button, ControlKind::check, ControlKind::radio}},
    {L"select", select, {ControlKind::combo}},
    {L"color", color, {ControlKind::combo}},
};

Result<> act(const Verb& verb, HWND dialog, std::wstring_view rest)
{
    const std::wstring word = takeWord(rest);
    const std::optional<int> id = parseInteger(word);
    const HWND control = id ? GetDlgItem(dialog, *id) : nullptr;
    if (control == nullptr)
    {
        return word.empty() ? ownFailure(L"Say which control: %1 ID", {verb.word})
                            : ownFailure(L"There is no control %1 in this dialog.", {word});
    }
    const ControlKind kind = kindOf(control);
    if (std::ranges::find(verb.kinds, kind) == verb.kinds.end())
    {
        const OwnText text = kind == ControlKind::edit
                                 ? OwnText(L"Control %1 is an %2, which does not take %3.")
                                 : OwnText(L"Control %1 is a %2, which does not take %3.");
        return ownFailure(text, {numberOf(control), own(nameOf(kind)), verb.word});
    }
    if (!IsWindowEnabled(control) || !IsWindowVisible(control))
    {
        return ownFailure(L"Control %1 is disabled.", {numberOf(control)});
    }
    return verb.act(control, rest);
}

void show(Editor& editor, HWND dialog)
{
    for (HWND control = GetWindow(dialog, GW_CHILD); control;
         control = GetWindow(control, GW_HWNDNEXT))
    {
        editor.printLine(controlLine(control));
    }
}
}  // namespace

Result<> takeDialogLine(Editor& editor, HWND dialog, std::wstring_view line)
{
    std::wstring_view rest = line;
    const std::wstring word = takeWord(rest);
    if (equalNoCase(word, L"show"))
    {
        show(editor, dialog);
        return Done{};
    }
    if (equalNoCase(word, L"close"))
    {
        SendMessageW(dialog, WM_CLOSE, 0, 0);
        return Done{};
    }
    for (const Verb& verb : verbs)
    {
        if (equalNoCase(word, verb.word))
        {
            return act(verb, dialog, rest);
        }
    }
    return ownFailure(
        L"A dialog takes set, check, click, select, color, show and close, not \"%1\".",
        {trimmed(line)});
}
}  // namespace host
