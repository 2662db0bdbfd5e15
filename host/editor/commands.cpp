#include "host/editor/commands.h"

#include <algorithm>

#include "host/database/drawing.h"
#include "host/database/nothingopen.h"
#include "host/documents/documentmanager.h"
#include "host/editor/hostcommands.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"
#include "host/editor/sysvars.h"
#include "host/basics/breach.h"
#include "host/text/foldcase.h"
#include "host/runtime/lispfunctions.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
// A name that was typed, without the characters that may precede it.
struct TypedName
{
    std::wstring_view name;
    bool global = false;  // typed with "_"
};

TypedName parseName(std::wstring_view line)
{
    TypedName typed{trimmed(line)};
    while (!typed.name.empty() &&
           std::wstring_view(L"'_.").find(typed.name.front()) != std::wstring_view::npos)
    {
        typed.global = typed.global || typed.name.front() == L'_';
        typed.name.remove_prefix(1);
    }
    return typed;
}

CommandPtr findCommand(const TypedName& typed)
{
    return typed.global ? commandStack().findGlobal(typed.name)
                        : commandStack().findLocal(typed.name);
}

std::wstring shownName(const Command& command)
{
    return upperCase(command.globalName());
}

// Checks that the command may run in this document.
Result<> checkAllowed(const Command& command, Document& document)
{
    const bool paper = stateOf(*document.database()).paperSpace;
    if (paper && command.has(ACRX_CMD_NOPAPERSPACE))
    {
        return ownFailure(L"** Command not allowed in Paper Space **");
    }
    if (!paper && command.has(ACRX_CMD_NOTILEMODE))
    {
        return ownFailure(L"** Command not allowed in Model Tab **");
    }
    if (document.isBlockEditor() && command.has(ACRX_CMD_NOBEDIT))
    {
        return ownFailure(L"** %1 command not allowed in block editor. **", {shownName(command)});
    }
    return Done{};
}

// Lends a command the document's lock, its resources and its place among the running commands.
// Checks at the end of the command that it has returned everything.
class RunningCommand
{
public:
    RunningCommand(Editor& editor, Document& document, const CommandPtr& command);
    ~RunningCommand();

private:
    void checkResources() const;
    void checkMeter() const;

    Editor& m_editor;
    Document& m_document;
    CommandPtr m_command;
    bool m_ownResources;
    std::size_t m_depth;
};

RunningCommand::RunningCommand(Editor& editor, Document& document, const CommandPtr& command)
    : m_editor(editor),
      m_document(document),
      m_command(command),
      m_ownResources(command->entry().resources != nullptr)
{
    if (m_ownResources)
    {
        document.resources().push(command->entry().resources);
    }
    m_depth = document.resources().depth();
    if (!command->has(ACRX_CMD_SESSION))
    {
        documents().lock(AcAp::kWrite, command->globalName());
    }
    documents().setApplicationContext(command->has(ACRX_CMD_SESSION));
    command->setRunning(true);
    editor.beginCommand(command);
}

RunningCommand::~RunningCommand()
{
    m_editor.endCommand();
    m_command->setRunning(false);
    const bool isNested = !m_editor.running().empty();
    documents().setApplicationContext(!isNested ||
                                      m_editor.running().back()->has(ACRX_CMD_SESSION));
    if (!m_command->has(ACRX_CMD_SESSION))
    {
        documents().unlock(m_command->globalName());
    }
    checkResources();
    checkMeter();
    if (m_ownResources)
    {
        m_document.resources().pop();
    }
    // An outer command may hold objects open while it asks, so only the outermost is checked.
    if (!isNested)
    {
        requireNothingOpen(*m_document.database(), toUtf8(shownName(*m_command)));
    }
}

void RunningCommand::checkResources() const
{
    const std::size_t depth = m_document.resources().depth();
    if (depth != m_depth)
    {
        breach(depth > m_depth ? "pushResourceHandle" : "popResourceHandle",
               toUtf8(shownName(*m_command)) + " did not leave the resource handles as they were");
    }
}

void RunningCommand::checkMeter() const
{
    if (m_editor.meter())
    {
        breach("acedSetStatusBarProgressMeter",
               toUtf8(shownName(*m_command)) + " did not restore the status bar");
    }
}

void run(Editor& editor, Document& document, const CommandPtr& command)
{
    const RunningCommand running(editor, document, command);
    // Options that a command has set but not used must not reach a prompt of another command.
    editor.setOptions({});
    command->functionAddr()();
    editor.setOptions({});
}

void markForUndo(Document& document, const Command& command)
{
    if (!command.has(ACRX_CMD_NO_UNDO_MARKER))
    {
        document.commands().begin(shownName(command));
    }
}

void start(Editor& editor, Document& document, const CommandPtr& command)
{
    if (const Result<> allowed = checkAllowed(*command, document); !allowed)
    {
        editor.printLine(fromUtf8(allowed.failure().line));
        return;
    }
    markForUndo(document, *command);
    run(editor, document, command);
}

// Returns the complaint about an unknown name. A terminal has no key that opens the help, so a
// person there is pointed to HELP.
std::wstring unknownCommand(const Editor& editor, std::wstring_view name)
{
    const OwnText text = editor.interactive()
                             ? OwnText(L"Unknown command \"%1\".  Type HELP for a list.")
                             : OwnText(L"Unknown command \"%1\".  Press F1 for help.");
    return own(text, {upperCase(name)});
}

bool mayInterrupt(const Command& command)
{
    return command.has(ACRX_CMD_TRANSPARENT) && !command.isRunning();
}
}  // namespace

bool executeLine(Editor& editor, std::wstring_view line)
{
    const TypedName typed = parseName(line);
    Document* document = documents().document();
    if (const CommandPtr command = findCommand(typed); command && document)
    {
        start(editor, *document, command);
        return true;
    }
    if (isVariable(typed.name) && document)
    {
        nameForSetvar(typed.name);
        start(editor, *document, commandStack().findGlobal(L"SETVAR"));
        return true;
    }
    const std::wstring function = L"C:" + std::wstring(typed.name);
    if (lispFunctions().defines(function))
    {
        lispFunctions().invoke(function);
        return true;
    }
    editor.printLine(unknownCommand(editor, typed.name));
    return false;
}

void startTransparent(Editor& editor, std::wstring_view line)
{
    const TypedName typed = parseName(line);
    const CommandPtr command = findCommand(typed);
    Document* document = documents().document();
    if (!command || !document)
    {
        editor.printLine(unknownCommand(editor, typed.name));
        return;
    }
    const Result<> allowed =
        mayInterrupt(*command) ? checkAllowed(*command, *document)
                               : ownFailure(L"** That command may not be invoked transparently **");
    if (!allowed)
    {
        editor.printLine(fromUtf8(allowed.failure().line));
        return;
    }
    run(editor, *document, command);
    editor.printLine(own(L"Resuming %1 command.", {shownName(*editor.running().back())}));
}

std::wstring runningNames(const Editor& editor)
{
    std::wstring names;
    for (const CommandPtr& command : editor.running())
    {
        names += (names.empty() ? L"" : L"'") + shownName(*command);
    }
    return names;
}

void runCommands(Editor& editor)
{
    const Question question{.kind = Question::Kind::command, .prompt = own(L"Command: ")};
    while (!editor.hasQuit() && !editor.inputEnded())
    {
        const Answer answer = editor.ask(question);
        if (cancelled(answer))
        {
            continue;
        }
        const std::wstring line(trimmed(answer.text));
        const std::wstring chosen = line.empty() ? editor.lastLine() : line;
        if (!chosen.empty() && executeLine(editor, chosen))
        {
            editor.rememberLine(chosen);
        }
    }
}
}  // namespace host
