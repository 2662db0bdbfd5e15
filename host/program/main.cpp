// arxhost: opens a drawing, loads a module, feeds it input and saves the drawing.
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>

#include "host/editor/linefrontend.h"
#include "host/program/job.h"
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

int runWith(const host::Options& options, std::istream& input, bool visible)
{
    host::LineReader reader(input, visible);
    host::LineFrontEnd frontEnd(reader, printOut, printError);
    int status = EXIT_FAILURE;
    frontEnd.serve([&] { status = runGuarded(options, frontEnd); });
    return status;
}

// What opens the settings dialog and leaves it again, for a picture that nobody wrote a script for.
std::string answersForPicture(const host::Options& options)
{
    const char* const settings = options.locale == host::russianLocale ? "Н" : "S";
    return std::string("zv_netrax\n") + settings + "\n^C\n^C\n";
}

int run(const host::Options& options)
{
    if (options.script.empty() && !options.dialogPicture.empty())
    {
        std::istringstream answers(answersForPicture(options));
        return runWith(options, answers, false);
    }
    if (options.script.empty() || options.script == "-")
    {
        const bool terminal = isatty(STDIN_FILENO) && isatty(STDOUT_FILENO);
        return runWith(options, std::cin, terminal);
    }
    std::ifstream script(options.script, std::ios::binary);
    if (!script)
    {
        printError(options.script + ": cannot be read");
        return EXIT_FAILURE;
    }
    return runWith(options, script, false);
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
