#include "host/editor/hostcommands.h"

#include <optional>
#include <string>

#include "host/documents/documentmanager.h"
#include "host/editor/editor.h"
#include "host/editor/owntexts.h"

namespace host
{
namespace
{
struct Row
{
    const wchar_t* name;
    int flags;
    AcRxFunctionPtr function;
    OwnText help;
};

// Commands without an undo marker change nothing that U could undo.
const int helpFlags = ACRX_CMD_TRANSPARENT | ACRX_CMD_NO_UNDO_MARKER;
const Row rows[] = {
    {L"?", helpFlags, helpCommand, L"the same as HELP"},
    {L"ARX", ACRX_CMD_NO_UNDO_MARKER, arxCommand, L"loads or unloads a module"},
    {L"DVIEW", ACRX_CMD_NOPAPERSPACE, dviewCommand, L"twists the view"},
    {L"HELP", helpFlags, helpCommand, L"lists the commands"},
    {L"PLAN", ACRX_CMD_NOPAPERSPACE, planCommand, L"looks straight at a coordinate system's plane"},
    {L"QUIT", ACRX_CMD_NO_UNDO_MARKER, quitCommand, L"ends the session"},
    {L"REDO", ACRX_CMD_NO_UNDO_MARKER, redoCommand, L"does again what U has undone"},
    {L"SETVAR", ACRX_CMD_TRANSPARENT, setvarCommand,
     L"shows or sets a variable, as its name alone does"},
    {L"U", ACRX_CMD_NO_UNDO_MARKER, undoCommand, L"undoes the last command"},
    {L"UCS", ACRX_CMD_MODAL, ucsCommand, L"sets the user coordinate system"},
    {L"VPOINT", ACRX_CMD_NOPAPERSPACE, vpointCommand, L"sets the direction of view"},
};
}  // namespace

void registerHostCommands()
{
    for (const Row& row : rows)
    {
        registerHostCommand(row.name, row.flags, row.function, row.help);
    }
}

void undoCommand()
{
    const std::optional<std::wstring> undone = documents().document()->commands().undo();
    Editor::current()->printLine(undone ? *undone : own(L"Everything has been undone."));
}

void redoCommand()
{
    const std::optional<std::wstring> redone = documents().document()->commands().redo();
    Editor::current()->printLine(redone ? *redone : own(L"Nothing to redo."));
}

void quitCommand()
{
    Editor::current()->quit();
}
}  // namespace host
