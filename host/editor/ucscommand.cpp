#include "acedads.h"
#include "geassign.h"
#include "host/database/drawing.h"
#include "host/documents/documentmanager.h"
#include "host/editor/hostcommands.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"
#include "host/editor/prompts.h"
#include "host/editor/ucs.h"

namespace host
{
namespace
{
Document& document()
{
    return *documents().document();
}

const Ucs& current()
{
    return stateOf(*document().database()).ucs();
}

void printCurrentName(Editor& editor)
{
    const Ucs& ucs = current();
    const std::wstring unnamed =
        own(isWorld(ucs.toWorld) ? OwnText(L"*WORLD*") : OwnText(L"*NO NAME*"));
    editor.printLine(own(L"Current ucs name:  %1", {ucs.name.empty() ? unnamed : ucs.name}));
}

void moveOrigin(const AcGePoint3d& originUcs)
{
    AcGeMatrix3d frame = current().toWorld;
    frame.setTranslation(ucsToWorld(frame, originUcs).asVector());
    setUcs(document(), frame);
}

// Turns the UCS about one of its own axes. The two other axes are computed from the angle in
// degrees, so that quarter turns are exact.
void turnAbout(int axis, double degrees)
{
    const AcGeMatrix3d& frame = current().toWorld;
    const Direction direction = directionOf(degrees);
    AcGeVector3d axes[3] = {axisOf(frame, 0), axisOf(frame, 1), axisOf(frame, 2)};
    AcGeVector3d& next = axes[(axis + 1) % 3];
    AcGeVector3d& last = axes[(axis + 2) % 3];
    const AcGeVector3d turned = next * direction.x + last * direction.y;
    last = last * direction.x - next * direction.y;
    next = turned;
    setUcs(document(), frameOf(originOf(frame), axes[0], axes[1], axes[2]));
}

void askTurn(Editor& editor, wchar_t axis)
{
    const std::wstring prompt = own(L"Specify rotation angle about %1 axis <90>: ", {{&axis, 1}});
    if (const std::optional<double> degrees = askDegrees(editor, prompt, 90))
    {
        turnAbout(axis - L'X', *degrees);
    }
}

// Asks for a point [ucs] that Enter skips; returns no value then. Keeps an answer that is not a
// point for the next question, because scripts give only the origin and go on with the next
// command.
std::optional<AcGePoint3d> askPointOrPass(Editor& editor, OwnText prompt)
{
    const AcGePoint3d origin;
    const Question question{.kind = Question::Kind::point, .prompt = own(prompt), .base = origin};
    const Answer answer = editor.askSilently(question);
    const std::optional<TypedPoint> typed = parsePoint(answer.text);
    if (answer.kind == Answer::Kind::line && !trimmed(answer.text).empty() && !typed)
    {
        editor.echo(answer, L"");
        editor.putBack(answer);
        return std::nullopt;
    }
    editor.echo(answer, cancelled(answer) ? L"^C" : answer.text);
    return typed ? std::optional(resolvePoint(*typed, &origin)) : std::nullopt;
}

// Turns the UCS so that its X axis has the direction `xUcs` and its XY plane holds `inPlaneUcs`.
// Returns false when the two vectors do not span a plane.
bool turnTowards(const AcGeVector3d& xUcs, const AcGeVector3d& inPlaneUcs)
{
    const AcGeVector3d normal = xUcs.crossProduct(inPlaneUcs);
    if (!(normal.length() > 1e-12 * xUcs.length() * inPlaneUcs.length()))
    {
        return false;
    }
    const AcGeMatrix3d& frame = current().toWorld;
    const AcGeVector3d x = ucsToWorld(frame, xUcs / xUcs.length());
    const AcGeVector3d z = ucsToWorld(frame, normal / normal.length());
    return setUcs(document(), frameOf(originOf(frame), x, z.crossProduct(x), z));
}

void askAxes(Editor& editor)
{
    const auto onX = askPointOrPass(editor, L"Specify point on X-axis or <Accept>: ");
    if (!onX)
    {
        return;
    }
    const auto inPlane = askPointOrPass(editor, L"Specify point on the XY plane or <Accept>: ");
    const AcGeVector3d x = onX->asVector();
    // Without a point the Z axis leans as little as it can: Y is perpendicular to X and the old Z.
    const AcGeVector3d y = inPlane ? inPlane->asVector() : AcGeVector3d(0, 0, 1).crossProduct(x);
    if (!turnTowards(x, y))
    {
        editor.printLine(own(L"Points are collinear."));
    }
}

void askOrigin()
{
    AcGePoint3d origin;
    acedInitGet(RSG_NONULL, nullptr);
    if (acedGetPoint(nullptr, own(L"Specify new origin point: ").c_str(), asDblArray(origin)) ==
        RTNORM)
    {
        moveOrigin(origin);
    }
}

void usePrevious(Editor& editor)
{
    if (!restorePreviousUcs(document()))
    {
        editor.printLine(own(L"No previous coordinate system saved."));
    }
}

void useOption(Editor& editor, const std::wstring& option)
{
    if (option == L"Origin")
    {
        askOrigin();
    }
    else if (option == L"Previous")
    {
        usePrevious(editor);
    }
    else if (option == L"World")
    {
        setUcs(document(), AcGeMatrix3d());
    }
    else
    {
        askTurn(editor, option.front());
    }
}
}  // namespace

void ucsCommand()
{
    Editor& editor = *Editor::current();
    printCurrentName(editor);
    AcGePoint3d origin;
    acedInitGet(0, own(L"Origin Previous World X Y Z").c_str());
    const std::wstring prompt =
        own(L"Specify origin of UCS or [Origin/Previous/World/X/Y/Z] <World>: ");
    const int result = acedGetPoint(nullptr, prompt.c_str(), asDblArray(origin));
    if (result == RTNORM)
    {
        moveOrigin(origin);
        askAxes(editor);
    }
    else if (result == RTKWORD)
    {
        useOption(editor, editor.lastInput().text);
    }
    else if (result == RTNONE)
    {
        setUcs(document(), AcGeMatrix3d());
    }
}
}  // namespace host
