#include "host/program/platform.h"

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "host/program/session.h"
#include "host/program/terminal/lineeditor.h"
#include "host/program/terminal/screen.h"

namespace host
{
namespace
{
int runInEditor(const Options& options)
{
    // While a line is edited Ctrl-C comes as a key; a command that computes is not stopped by it.
    std::signal(SIGINT, SIG_IGN);
    Screen screen;
    LineEditor editor(screen);
    const int status = runSession(
        options, editor,
        {.print = [&](std::string_view text) { screen.print(text); },
         .report = [&](std::string_view line) { screen.report(line); },
         .showMeter = [&](const std::optional<Meter>& meter) { screen.showMeter(meter); }});
    screen.finish();
    return status;
}
}  // namespace

void beginProcess()
{
    // A reader that goes away early must not keep the drawing from being saved.
    std::signal(SIGPIPE, SIG_IGN);
}

std::vector<std::string> givenArguments(int count, char** arguments)
{
    return {arguments, arguments + count};
}

bool silenceOutput()
{
    return std::freopen("/dev/null", "w", stdout) != nullptr;
}

bool isAtTerminal()
{
    return isatty(STDIN_FILENO) && isatty(STDOUT_FILENO);
}

std::optional<int> runEdited(const Options& options)
{
    const char* const kind = std::getenv("TERM");
    const bool canEdit = kind != nullptr && *kind != '\0' && std::string_view(kind) != "dumb";
    return isAtTerminal() && canEdit ? std::optional(runInEditor(options)) : std::nullopt;
}
}  // namespace host
