#include "host/program/saveas.h"

#include "host/documents/documentmanager.h"
#include "host/dxf/drawingfile.h"
#include "host/editor/hostcommands.h"
#include "host/editor/prompts.h"
#include "host/program/longwork.h"
#include "host/program/unsaved.h"
#include "host/runtime/linker.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
// Asks for the file; Enter is the drawing's own file. Returns no value for Esc, and for Enter if
// the drawing has no file.
std::optional<std::filesystem::path> askPath(Editor& editor, const Document& document)
{
    const std::wstring prompt = document.path().empty()
                                    ? own(L"Save drawing as: ")
                                    : own(L"Save drawing as <%1>: ", {document.fileName()});
    auto name = askLine(editor, Question::Kind::file, prompt);
    if (!name)
    {
        return std::nullopt;
    }
    std::erase(*name, L'"');
    const std::filesystem::path typed = toNativePath(*name);
    const std::filesystem::path path = typed.empty() ? document.path() : typed;
    return path.empty() ? std::nullopt : std::optional(path);
}

Result<> saveShown(AcDbDatabase& database, const std::string& path, Editor& editor)
{
    LongWork work(L"Saving", editor);
    return saveDrawing(database, path, work.progress());
}

// Saves the drawing, which has the new name from then on.
void saveAsCommand()
{
    Editor& editor = *Editor::current();
    Document& document = *documents().document();
    const std::optional<std::filesystem::path> path = askPath(editor, document);
    if (!path || !mayReplace(editor, *path))
    {
        return;
    }
    linker().broadcast(AcRx::kSaveMsg);
    const Result<> saved = saveShown(*document.database(), path->string(), editor);
    if (!saved)
    {
        editor.fail(fromUtf8(saved.failure().line));
        return;
    }
    for (const std::string& loss : lossesOnSaving(*document.database()))
    {
        editor.printLine(fromUtf8(loss));
    }
    document.setPath(*path);
    noteSaved(editor);
    tellSaved(editor, *path);
}
}  // namespace

void registerSaveAs()
{
    registerHostCommand(L"SAVEAS", ACRX_CMD_NO_UNDO_MARKER, saveAsCommand,
                        L"saves the drawing as DXF");
}
}  // namespace host
