#include <algorithm>
#include <map>

#include "host/editor/editor.h"
#include "host/editor/hostcommands.h"
#include "host/runtime/commandstack.h"

namespace host
{
namespace
{
const wchar_t* const hostGroup = L"ACAD";

// Returns the help lines by command name, in the order in which HELP lists them.
std::map<std::wstring, OwnText>& helpLines()
{
    static std::map<std::wstring, OwnText> lines;
    return lines;
}

void printHelp(Editor& editor, std::wstring name, std::wstring_view help)
{
    const std::size_t column = 10;
    name.resize(std::max(name.size(), column), L' ');
    editor.printLine(name + L"  " + std::wstring(help));
}

std::vector<CommandPtr> moduleCommands()
{
    std::vector<CommandPtr> commands = commandStack().all();
    std::erase_if(commands,
                  [](const CommandPtr& command) { return command->entry().group == hostGroup; });
    return commands;
}
}  // namespace

void registerHostCommand(const wchar_t* name, int flags, AcRxFunctionPtr function, OwnText help)
{
    commandStack().addCommand(hostGroup, name, name, flags, function, nullptr, -1, nullptr,
                              nullptr);
    helpLines().emplace(name, help);
}

void helpCommand()
{
    Editor& editor = *Editor::current();
    for (const CommandPtr& command : moduleCommands())
    {
        printHelp(editor, command->localName(),
                  own(L"a command of a module, group %1", {command->entry().group}));
    }
    for (const auto& [name, help] : helpLines())
    {
        printHelp(editor, name, own(help));
    }
}

std::wstring moduleCommandNames()
{
    std::wstring names;
    for (const CommandPtr& command : moduleCommands())
    {
        names += (names.empty() ? L"" : L", ") + std::wstring(command->localName());
    }
    return names;
}
}  // namespace host
