#include "host/editor/messageboxes.h"

#include "host/editor/editor.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"
#include "host/text/foldcase.h"
#include "host/windows/messagebox.h"

namespace host
{
namespace
{
struct Button
{
    OwnText label;
    int id;
};

struct Box
{
    std::vector<Button> buttons;
    bool escapes;  // Esc presses the last button
};

Box boxOf(unsigned type)
{
    switch (type & 0xF)
    {
        case MB_OKCANCEL:
            return {{{L"OK", IDOK}, {L"Cancel", IDCANCEL}}, true};
        case MB_YESNOCANCEL:
            return {{{L"Yes", IDYES}, {L"No", IDNO}, {L"Cancel", IDCANCEL}}, true};
        case MB_YESNO:
            return {{{L"Yes", IDYES}, {L"No", IDNO}}, false};
        default:
            return {{{L"OK", IDOK}}, true};
    }
}

std::wstring labels(const Box& box)
{
    std::wstring text;
    for (const Button& button : box.buttons)
    {
        text += (text.empty() ? L"" : L"/") + own(button.label);
    }
    return text;
}

const Button& defaultButton(const Box& box, unsigned type)
{
    const bool second = (type & MB_DEFBUTTON2) != 0 && box.buttons.size() > 1;
    return box.buttons[second ? 1 : 0];
}

// Tells whether the text names the button. The English word works in every language.
bool names(std::wstring_view typed, const Button& button)
{
    return equalNoCase(typed, own(button.label)) || equalNoCase(typed, button.label.english());
}

// Returns the button that the answer presses; null when it presses no button.
const Button* pressed(const Box& box, const Answer& answer, unsigned type)
{
    // At the end of the input the box still needs an answer, and the last button does the least.
    if (answer.kind == Answer::Kind::endOfInput ||
        (answer.kind == Answer::Kind::cancel && box.escapes))
    {
        return &box.buttons.back();
    }
    if (trimmed(answer.text).empty() && answer.kind != Answer::Kind::cancel)
    {
        return &defaultButton(box, type);
    }
    for (const Button& button : box.buttons)
    {
        if (names(trimmed(answer.text), button))
        {
            return &button;
        }
    }
    return nullptr;
}

int askBox(Editor& editor, const ShownBox& shown)
{
    const Box box = boxOf(shown.type);
    Question question{.kind = Question::Kind::messageBox,
                      .caption = shown.caption,
                      .text = shown.text,
                      .isWithdrawn = shown.isGone};
    question.prompt =
        L"[message box] " + shown.caption + L": " + shown.text + L" (" + labels(box) + L") -> ";
    for (const Button& button : box.buttons)
    {
        question.keywords.push_back(own(button.label));
    }
    for (;;)
    {
        const Answer answer = editor.askSilently(question);
        if (answer.kind == Answer::Kind::withdrawn)
        {
            editor.echo(answer, L"");
            return 0;
        }
        if (const Button* button = pressed(box, answer, shown.type))
        {
            editor.echo(answer, foldCase(own(button->label)));
            return button->id;
        }
        editor.echo(answer, cancelled(answer) ? L"^C" : answer.text);
        editor.printLine(own(L"Answer with one of the buttons: %1.", {labels(box)}));
    }
}
}  // namespace

void answerMessageBoxes(Editor* editor)
{
    if (editor == nullptr)
    {
        setMessageBoxHandler({});
        return;
    }
    setMessageBoxHandler([editor](const ShownBox& box) { return askBox(*editor, box); });
}
}  // namespace host
