#include "host/dialogs/modalloop.h"

#include <utility>

#include "host/dialogs/controlview.h"
#include "host/dialogs/dialoglines.h"
#include "host/dialogs/wnd.h"
#include "host/editor/editor.h"
#include "host/runtime/breach.h"

namespace host
{
namespace
{
std::function<void(HWND)>& observer()
{
    static std::function<void(HWND)> installed;
    return installed;
}

void press(HWND dialog, int id)
{
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

// Enter presses the default button, or OK where there is none.
void pressDefault(HWND dialog)
{
    const LRESULT answer = SendMessageW(dialog, DM_GETDEFID, 0, 0);
    const HWND button = GetDlgItem(dialog, LOWORD(answer));
    if (HIWORD(answer) != DC_HASDEFID || button == nullptr)
    {
        press(dialog, IDOK);
    }
    else if (IsWindowEnabled(button))
    {
        SendMessageW(button, BM_CLICK, 0, 0);
    }
}

void take(Editor& editor, HWND dialog, const Answer& answer)
{
    if (cancelled(answer))
    {
        press(dialog, IDCANCEL);
    }
    else if (answer.kind == Answer::Kind::enter)
    {
        pressDefault(dialog);
    }
    else if (const auto wrong = takeDialogLine(editor, dialog, answer.text))
    {
        editor.printLine(*wrong);
    }
}

void requireVisible(HWND dialog)
{
    if (!IsWindowVisible(dialog))
    {
        breach("BeginEditorCommand", "the dialog was not brought back by CompleteEditorCommand");
    }
}

// A script needs no prompt; a person does, and sees the dialog again after each pick.
class Viewer
{
public:
    Viewer(Editor& editor, HWND dialog) : m_editor(editor), m_dialog(dialog) {}

    Question question()
    {
        Question question{.kind = Question::Kind::dialog, .caption = windowText(m_dialog)};
        if (!m_editor.interactive())
        {
            return question;
        }
        if (m_pickCount != m_editor.picksFromDialogs)
        {
            m_pickCount = m_editor.picksFromDialogs;
            m_editor.printLine(readableView(m_dialog));
        }
        question.prompt = L"Dialog: ";
        return question;
    }

private:
    Editor& m_editor;
    HWND m_dialog;
    int m_pickCount = -1;
};
}  // namespace

void runModalLoop(HWND dialog, const bool& ended)
{
    Editor* const editor = Editor::current();
    if (editor == nullptr)
    {
        breach("CDialog::DoModal", "nobody sits at a command line");
    }
    ShowWindow(dialog, SW_SHOW);
    editor->printLine(L"[dialog] " + windowText(dialog));
    ++editor->shownDialogs;
    Viewer viewer(*editor, dialog);
    while (!ended)
    {
        requireVisible(dialog);
        const Answer answer = editor->askSilently(viewer.question());
        if (answer.visible)
        {
            editor->echo(answer, {});
        }
        take(*editor, dialog, answer);
    }
    requireVisible(dialog);
    --editor->shownDialogs;
    if (observer())
    {
        observer()(dialog);
    }
}

void tellDialogClosed(bool ok)
{
    Editor::current()->printLine(ok ? L"[dialog closed] ok" : L"[dialog closed] cancel");
}

void dialogStepsAside()
{
    Editor* const editor = Editor::current();
    --editor->shownDialogs;
    ++editor->picksFromDialogs;
}

void dialogComesBack()
{
    ++Editor::current()->shownDialogs;
}

void setDialogObserver(std::function<void(HWND)> newObserver)
{
    observer() = std::move(newObserver);
}
}  // namespace host
