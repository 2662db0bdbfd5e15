#include "acedads.h"
#include "host/editor/hostcommands.h"
#include "host/editor/owntexts.h"
#include "host/editor/prompts.h"
#include "host/runtime/linker.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
// Asks for the name of a file; returns no value for Enter and for Esc. Removes the quotes that a
// name with blanks may have.
std::optional<std::filesystem::path> askFile(Editor& editor, OwnText prompt)
{
    auto name = askLine(editor, Question::Kind::file, own(prompt));
    if (name)
    {
        std::erase(*name, L'"');
    }
    return name && !name->empty() ? std::optional<std::filesystem::path>(toNativePath(*name))
                                  : std::nullopt;
}

void printResult(Editor& editor, const Result<>& result, const std::filesystem::path& file,
                 OwnText done)
{
    editor.printLine(result ? own(done, {fromUtf8(file.filename().string())})
                            : fromUtf8(result.failure().line));
}

void loadFile(Editor& editor)
{
    if (const auto file = askFile(editor, L"Enter ARX file name to load: "))
    {
        printResult(editor, linker().load(*file), *file, L"%1 successfully loaded.");
    }
}

void unloadFile(Editor& editor)
{
    if (const auto file = askFile(editor, L"Enter ARX file name to unload: "))
    {
        printResult(editor, linker().unload(*file), *file, L"%1 successfully unloaded.");
    }
}

// Lists the commands of modules, without the host's own commands.
void listCommands(Editor& editor)
{
    bool any = false;
    for (const CommandPtr& command : commandStack().all())
    {
        const CommandEntry& entry = command->entry();
        if (entry.group != L"ACAD")
        {
            editor.printLine(entry.group + L": " + entry.globalName + L" (" + entry.localName +
                             L")");
            any = true;
        }
    }
    if (!any)
    {
        editor.printLine(own(L"No module has registered a command."));
    }
}
}  // namespace

void arxCommand()
{
    Editor& editor = *Editor::current();
    ACHAR option[133];
    acedInitGet(0, own(L"Load Unload Commands").c_str());
    if (acedGetKword(own(L"Enter an option [Load/Unload/Commands]: ").c_str(), option) != RTNORM)
    {
        return;
    }
    switch (option[0])
    {
        case L'L':
            loadFile(editor);
            return;
        case L'U':
            unloadFile(editor);
            return;
        default:
            listCommands(editor);
    }
}
}  // namespace host
