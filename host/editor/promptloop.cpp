#include "host/editor/promptloop.h"

#include "geassign.h"
#include "host/database/drawing.h"
#include "host/documents/documentmanager.h"
#include "host/text/numbers.h"
#include "host/editor/ucs.h"

namespace host
{
namespace
{
// Ends a prompt with a text or keyword, which the module then gets from acedGetInput.
int giveText(Editor& editor, std::wstring_view text, bool keyword)
{
    editor.noteInput({std::wstring(text), keyword});
    return RTKWORD;
}

}  // namespace

int promptUntilTaken(Editor& editor, Question question, const PromptOptions& options,
                     const Reader& read)
{
    question.keywords = options.keywords.names();
    for (;;)
    {
        const Answer answer = askUser(editor, question);
        if (cancelled(answer))
        {
            return RTCAN;
        }
        const std::wstring_view typed = trimmed(answer.text);
        const bool other = (options.bits & RSG_OTHER) != 0;
        if (typed.empty() && (other || !(options.bits & RSG_NONULL)))
        {
            // RSG_OTHER accepts any text, so that RSG_NONULL turns Enter into an empty text.
            return options.bits & RSG_NONULL ? giveText(editor, typed, false) : int(RTNONE);
        }
        if (const auto keyword = options.keywords.match(typed))
        {
            return giveText(editor, *keyword, true);
        }
        const Reading reading = read(typed);
        if (reading.state == Reading::State::taken)
        {
            return RTNORM;
        }
        if (reading.state == Reading::State::foreign && other)
        {
            return giveText(editor, typed, false);
        }
        editor.printLine(own(*reading.complaint));
    }
}

Reader pointReader(const AcGePoint3d* base, AcGePoint3d& point)
{
    return [base, &point](std::wstring_view text)
    {
        // A number alone would be a distance towards the cursor, but the host has no cursor.
        const std::optional<TypedPoint> typed = parsePoint(text);
        if (!typed)
        {
            return foreign(L"Invalid point.");
        }
        point = resolvePoint(*typed, base);
        return taken;
    };
}

Question questionOf(Question::Kind kind, const ACHAR* prompt, const ads_real* base)
{
    Question question{.kind = kind, .prompt = prompt ? prompt : L""};
    if (base != nullptr)
    {
        question.base = asPnt3d(base);
    }
    return question;
}

Editor* askingEditor()
{
    return documents().document() ? Editor::current() : nullptr;
}

void setLastPoint(const AcGePoint3d& point)
{
    Document& document = *documents().document();
    document.setLastPoint(ucsToWorld(stateOf(*document.database()).ucs().toWorld, point));
}
}  // namespace host
