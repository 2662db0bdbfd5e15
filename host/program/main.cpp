// arxhost: opens a drawing, loads a module, feeds it input and saves the drawing.
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <utility>

#include "host/editor/linefrontend.h"
#include "host/editor/scriptreader.h"
#include "host/program/job.h"
#include "host/program/lineeditor.h"
#include "host/program/screen.h"
#include "host/runtime/locale.h"

namespace
{
void printOut(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
    // Whoever sits at the other end of a pipe has to see a prompt, which has no line end.
    if (!text.ends_with('\n'))
    {
        std::fflush(stdout);
    }
}

void printError(std::string_view line)
{
    std::fprintf(stderr, "arxhost: %.*s\n", int(line.size()), line.data());
}

int runGuarded(const host::Options& options, host::FrontEnd& frontEnd)
{
    try
    {
        return host::runJob(options, frontEnd);
    }
    catch (const std::exception& failure)
    {
        frontEnd.report(failure.what());
        return EXIT_FAILURE;
    }
}

int runWith(const host::Options& options, host::AnswerReader& reader,
            host::LineOutput output = {.print = printOut, .report = printError})
{
    host::LineFrontEnd frontEnd(reader, std::move(output));
    int status = EXIT_FAILURE;
    frontEnd.serve([&] { status = runGuarded(options, frontEnd); });
    return status;
}

int runEdited(const host::Options& options)
{
    // While a line is edited Ctrl-C comes as a key; a command that computes is not stopped by it.
    std::signal(SIGINT, SIG_IGN);
    host::Screen screen;
    host::LineEditor editor(screen);
    const int status = runWith(
        options, editor,
        {.print = [&](std::string_view text) { screen.print(text); },
         .report = [&](std::string_view line) { screen.report(line); },
         .showMeter = [&](const std::optional<host::Meter>& meter) { screen.showMeter(meter); }});
    screen.finish();
    return status;
}

int runStandardInput(const host::Options& options)
{
    const bool terminal = isatty(STDIN_FILENO) && isatty(STDOUT_FILENO);
    const char* const kind = std::getenv("TERM");
    const bool canEdit = kind != nullptr && *kind != '\0' && std::string_view(kind) != "dumb";
    if (terminal && canEdit)
    {
        return runEdited(options);
    }
    host::LineReader reader(std::cin, terminal);
    return runWith(options, reader);
}

int runScript(const host::Options& options)
{
    std::ifstream script(options.script, std::ios::binary);
    if (!script)
    {
        printError(options.script + ": cannot be read");
        return EXIT_FAILURE;
    }
    if (host::isHostScript(options.script))
    {
        host::ScriptReader reader(script);
        return runWith(options, reader);
    }
    host::LineReader reader(script, false);
    return runWith(options, reader);
}

// What opens the settings dialog and leaves it again, for a picture that nobody wrote a script for.
std::string answersForPicture(const host::Options& options)
{
    const char* const settings = options.locale == host::russianLocale ? "Н" : "S";
    return std::string("zv_netrax\n") + settings + "\n^C\n^C\n";
}

int run(const host::Options& options)
{
    if (options.quiet && std::freopen("/dev/null", "w", stdout) == nullptr)
    {
        printError("standard output cannot be closed");
        return EXIT_FAILURE;
    }
    if (options.script.empty() && !options.dialogPicture.empty())
    {
        std::istringstream answers(answersForPicture(options));
        host::LineReader reader(answers, false);
        return runWith(options, reader);
    }
    const bool fromFile = !options.script.empty() && options.script != "-";
    return fromFile ? runScript(options) : runStandardInput(options);
}
}  // namespace

int main(int count, char** arguments)
{
    // A reader that goes away early must not keep the drawing from being saved.
    std::signal(SIGPIPE, SIG_IGN);
    int status = EXIT_SUCCESS;
    const std::optional<host::Options> options = host::parseOptions(count, arguments, status);
    return options ? run(*options) : status;
}
