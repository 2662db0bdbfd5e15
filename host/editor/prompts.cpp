#include "host/editor/prompts.h"

#include "host/database/drawing.h"
#include "host/documents/documentmanager.h"
#include "host/editor/commands.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"
#include "host/editor/sysvars.h"
#include "host/editor/ucs.h"

namespace host
{
Answer askUser(Editor& editor, const Question& question)
{
    for (;;)
    {
        const Answer answer = editor.ask(question);
        if (!answer.text.starts_with(L'\''))
        {
            return answer;
        }
        startTransparent(editor, answer.text);
    }
}

std::optional<std::wstring> askLine(Editor& editor, Question::Kind kind, const std::wstring& prompt)
{
    const Question question{.kind = kind, .prompt = prompt};
    const bool anything = kind == Question::Kind::text || kind == Question::Kind::name ||
                          kind == Question::Kind::file;
    const Answer answer = anything ? editor.ask(question) : askUser(editor, question);
    return cancelled(answer) ? std::nullopt : std::optional<std::wstring>(trimmed(answer.text));
}

std::optional<double> askDegrees(Editor& editor, const std::wstring& prompt, double initial)
{
    while (const auto line = askLine(editor, Question::Kind::distance, prompt))
    {
        if (line->empty())
        {
            return initial;
        }
        if (const std::optional<double> degrees = parseReal(*line))
        {
            return degrees;
        }
        editor.printLine(own(L"Requires valid numeric angle."));
    }
    return std::nullopt;
}

AcGePoint3d resolvePoint(const TypedPoint& typed, const AcGePoint3d* base)
{
    const Document& document = *documents().document();
    const AcGeMatrix3d& ucs = stateOf(*document.database()).ucs().toWorld;
    AcGePoint3d point = typed.coordinates;
    if (typed.relative)
    {
        const AcGePoint3d from = base ? *base : worldToUcs(ucs, document.lastPoint());
        return from + point.asVector();
    }
    if (!typed.hasZ)
    {
        point.z = std::get<double>(variableValue(L"ELEVATION"));
    }
    return typed.world ? worldToUcs(ucs, point) : point;
}
}  // namespace host
