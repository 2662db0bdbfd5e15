#include "host/dialogs/modalloop.h"

#include <utility>

#include "host/dialogs/controlview.h"
#include "host/dialogs/dialoglines.h"
#include "host/dialogs/wnd.h"
#include "host/editor/editor.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"
#include "host/basics/breach.h"
#include "host/windows/pendingmessages.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
std::function<void(HWND)>& observer()
{
    static std::function<void(HWND)> installed;
    return installed;
}

// Presses a button unless it is disabled. A dialog without the button gets its command all the
// same.
void press(HWND dialog, int id)
{
    const HWND button = GetDlgItem(dialog, id);
    if (button == nullptr || IsWindowEnabled(button))
    {
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                     reinterpret_cast<LPARAM>(button));
    }
}

// Presses the default button, or OK in a dialog without a default button.
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
    else if (trimmed(answer.text).empty())
    {
        pressDefault(dialog);
    }
    else if (const Result<> taken = takeDialogLine(editor, dialog, answer.text); !taken)
    {
        editor.printLine(fromUtf8(taken.failure().line));
    }
}

// Stops a module whose handler has destroyed the dialog or has not brought it back, whether the
// handler has ended the dialog or not.
void requireBack(HWND dialog, bool shown)
{
    if (!IsWindow(dialog))
    {
        breach("DestroyWindow", "a dialog that is shown ends with EndDialog");
    }
    if (!shown)
    {
        breach("BeginEditorCommand", "there was no CompleteEditorCommand");
    }
}

void requireVisible(HWND dialog)
{
    if (!IsWindowVisible(dialog))
    {
        breach("CDialog::DoModal", "the dialog is hidden and cannot be answered");
    }
}

// Makes the questions of a dialog. A person gets a prompt and sees the dialog again after each
// pick; a script needs neither.
class Viewer
{
public:
    Viewer(Editor& editor, HWND dialog) : m_editor(editor), m_dialog(dialog) {}

    Question question()
    {
        Question question{.kind = Question::Kind::dialog, .caption = windowText(m_dialog)};
        const bool isUnseen = hasStoodAside();
        m_pickCount = m_editor.dialogs().picks();
        if (!m_editor.interactive())
        {
            return question;
        }
        if (isUnseen)
        {
            m_editor.printLine(readableView(m_dialog));
        }
        question.prompt = own(L"Dialog: ");
        return question;
    }

    // Tells whether a click on a pick button has hidden the dialog since the last question.
    bool hasStoodAside() const { return m_pickCount != m_editor.dialogs().picks(); }

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
    const int shown = editor->dialogs().show();
    Viewer viewer(*editor, dialog);
    while (!ended)
    {
        requireVisible(dialog);
        Question question = viewer.question();
        question.isWithdrawn = [&] { return ended || viewer.hasStoodAside(); };
        const Answer answer = editor->askSilently(question);
        if (answer.visible)
        {
            editor->echo(answer, {});
        }
        if (answer.kind == Answer::Kind::withdrawn)
        {
            continue;
        }
        take(*editor, dialog, answer);
        dispatchPendingMessages();  // handlers may have posted messages of their own
        requireBack(dialog, editor->dialogs().count() == shown);
    }
    editor->dialogs().hide();
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
    Editor::current()->dialogs().stepAside();
}

void dialogComesBack()
{
    Editor::current()->dialogs().comeBack();
}

DialogObserver::DialogObserver(std::function<void(HWND)> look)
{
    observer() = std::move(look);
}

DialogObserver::~DialogObserver()
{
    observer() = nullptr;
}
}  // namespace host
