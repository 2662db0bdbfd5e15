
#include "acedads.h"
#include "host/basics/angle.h"
#include "host/database/drawing.h"
#include "host/documents/documentmanager.h"
#include "host/editor/hostcommands.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"
#include "host/editor/prompts.h"
#include "host/editor/ucs.h"
#include "host/editor/view.h"

namespace host
{
namespace
{
DrawingState& state()
{
    return stateOf(*documents().document()->database());
}

std::wstring pointText(const AcGeVector3d& vector)
{
    return realText(vector.x) + L"," + realText(vector.y) + L"," + realText(vector.z);
}

// Parses a direction. A direction has neither an origin nor an elevation, so "@" and "*" before it
// have no meaning and are refused.
std::optional<AcGeVector3d> parseDirection(std::wstring_view text)
{
    const std::optional<TypedPoint> typed = parsePoint(text);
    if (!typed || typed->relative || typed->world)
    {
        return std::nullopt;
    }
    const AcGeVector3d direction = typed->coordinates.asVector();
    return direction.length() > 0 ? std::optional(direction) : std::nullopt;
}

void askTwist(Editor& editor)
{
    View& view = state().view;
    const double twist = inFullTurn(view.twist);
    const std::wstring prompt = own(L"Specify view twist angle <%1>: ", {degreesText(twist)});
    const double current = toDegrees(twist);
    const std::optional<double> degrees = askDegrees(editor, prompt, current);
    if (degrees && *degrees != current)
    {
        turnView(view, view.direction, toRadians(*degrees));
    }
}

void usePlanOf(const AcGeMatrix3d& frame)
{
    planView(state().view, frame);
}

// Answers PLAN's option for a named UCS. The host does not name coordinate systems, so that it
// never finds one.
void planOfNamedUcs(Editor& editor)
{
    const auto name = askLine(editor, Question::Kind::name, own(L"Enter name of UCS: "));
    if (name && !name->empty())
    {
        editor.printLine(own(L"Cannot find UCS %1.", {*name}));
    }
}
}  // namespace

void vpointCommand()
{
    Editor& editor = *Editor::current();
    editor.printLine(
        own(L"Current view direction:  VIEWDIR=%1", {pointText(state().view.direction)}));
    while (const auto line =
               askLine(editor, Question::Kind::point, own(L"Specify a view point <keep>: ")))
    {
        if (line->empty())
        {
            return;
        }
        if (const std::optional<AcGeVector3d> direction = parseDirection(*line))
        {
            turnView(state().view, *direction, 0);
            return;
        }
        editor.printLine(own(L"Invalid point."));
    }
}

void dviewCommand()
{
    Editor& editor = *Editor::current();
    const std::wstring select = own(L"Select objects or <use DVIEWBLOCK>: ");
    const auto selected = askLine(editor, Question::Kind::name, select);
    if (!selected)
    {
        return;
    }
    if (!selected->empty())
    {
        editor.printLine(own(L"Nothing is shown while the view turns; the objects do not matter."));
    }
    for (;;)
    {
        ACHAR option[133];
        acedInitGet(0, own(L"TWist").c_str());
        if (acedGetKword(own(L"Enter option [TWist]: ").c_str(), option) != RTNORM)
        {
            return;
        }
        askTwist(editor);
    }
}

void planCommand()
{
    Editor& editor = *Editor::current();
    const KeywordList options(own(L"Current Ucs World"));
    const Question question{.kind = Question::Kind::keyword,
                            .prompt = own(L"Enter an option [Current ucs/Ucs/World] <Current>: "),
                            .keywords = options.names()};
    const Answer answer = editor.askSilently(question);
    const std::wstring typed(trimmed(answer.text));
    const std::optional<std::wstring> option = options.match(typed);
    const bool foreign = answer.kind == Answer::Kind::line && !typed.empty() && !option;
    editor.echo(answer, cancelled(answer) ? L"^C" : foreign ? L"" : answer.text);
    if (cancelled(answer))
    {
        return;
    }
    // Scripts give PLAN without an answer and go on with the next command. An answer that is not an
    // option is therefore kept as that command, and the plan is that of the current UCS.
    if (foreign)
    {
        editor.putBack(answer);
    }
    if (option == L"Ucs")
    {
        planOfNamedUcs(editor);
        return;
    }
    usePlanOf(option == L"World" ? Frame() : state().ucs().toWorld);
}
}  // namespace host
