#include "host/program/platform.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "host/program/session.h"
#include "host/program/terminal/lineeditor.h"
#include "host/program/terminal/screen.h"
#include "host/program/terminal/signals.h"

namespace host
{
namespace
{
int runInEditor(const Options& options)
{
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

// Runs a session at a terminal that edits its lines itself.
int runPlain(const Options& options)
{
    LineReader reader(std::cin, true);
    return runSession(options, reader);
}

bool canEdit()
{
    const char* const kind = std::getenv("TERM");
    return kind != nullptr && *kind != '\0' && std::string_view(kind) != "dumb";
}
}  // namespace

void beginProcess()
{
    // The drawing must be saved even if the program that reads the output has ended.
    std::signal(SIGPIPE, SIG_IGN);
    endTidilyAtSignals();
}

std::vector<std::string> givenArguments(int count, char** arguments)
{
    return {arguments, arguments + count};
}

bool silenceOutput()
{
    // The descriptor stays open, because the drawing may be saved to it.
    std::FILE* const nothing = std::fopen("/dev/null", "w");
    stdout = nothing != nullptr ? nothing : stdout;
    return nothing != nullptr;
}

void write(std::FILE* stream, std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stream);
}

void beforeTheEnd(int) {}

bool makeNewFile(const std::filesystem::path& file)
{
    const int made = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    return made >= 0 && ::close(made) == 0;
}

int errorColumns()
{
    winsize size{};
    const bool known =
        isatty(STDERR_FILENO) && canEdit() && ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0;
    return !known ? 0 : size.ws_col > 0 ? size.ws_col : 80;
}

std::optional<int> runAtTerminal(const Options& options)
{
    if (!isatty(STDIN_FILENO) || !isatty(STDOUT_FILENO))
    {
        return std::nullopt;
    }
    const bool edits = canEdit();
    if (edits)
    {
        // Ctrl-C arrives as a key while a line is edited. It does not stop a command that computes.
        std::signal(SIGINT, SIG_IGN);
    }
    endInputAtSignals();
    const int status = edits ? runInEditor(options) : runPlain(options);
    endBySignalOfInput();
    return status;
}
}  // namespace host
