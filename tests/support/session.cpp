#include "tests/support/session.h"

#include "host/documents/documentmanager.h"
#include "host/editor/commands.h"
#include "host/editor/editor.h"
#include "host/editor/hostcommands.h"
#include "host/windows/text.h"

namespace support
{
namespace
{
const std::function<void()>* theBody = nullptr;

void runBody()
{
    (*theBody)();
}
}  // namespace

host::Answer Typist::ask(const host::Question& question)
{
    questions.push_back(question);
    if (lines.empty())
    {
        return {.kind = host::Answer::Kind::endOfInput};
    }
    const std::string line = lines.front();
    lines.pop_front();
    if (line.empty() || line == "^C")
    {
        return {.kind = line.empty() ? host::Answer::Kind::enter : host::Answer::Kind::cancel};
    }
    return {.kind = host::Answer::Kind::line, .text = host::fromUtf8(line)};
}

Session::Session(std::unique_ptr<AcDbDatabase> drawing)
{
    host::registerHostCommands();
    host::documents().open(std::move(drawing));
}

Session::~Session()
{
    host::commandStack().removeGroup(L"TEST");
    host::documents().close();
}

host::Document& Session::document() const
{
    return *host::documents().document();
}

void Session::define(const wchar_t* name, AcRxFunctionPtr function, int flags, HINSTANCE resources)
{
    host::commandStack().addCommand(L"TEST", name, name, flags, function, nullptr, -1, resources,
                                    nullptr);
}

std::string Session::type(std::vector<std::string> lines)
{
    Typist typist;
    typist.lines.assign(lines.begin(), lines.end());
    host::Editor editor(typist, trace);
    host::runCommands(editor);
    endedInsideCommand = editor.endedInsideCommand();
    reports = std::move(typist.reports);
    questions = std::move(typist.questions);
    return typist.transcript;
}

std::string Session::run(const std::function<void()>& body, std::vector<std::string> lines)
{
    Typist typist;
    typist.lines.assign(lines.begin(), lines.end());
    host::Editor editor(typist, trace);
    theBody = &body;
    host::commandStack().removeCmd(L"TEST", L"BODY");
    define(L"BODY", runBody);
    host::executeLine(editor, L"BODY");
    endedInsideCommand = editor.endedInsideCommand();
    reports = std::move(typist.reports);
    questions = std::move(typist.questions);
    return typist.transcript;
}
}  // namespace support
