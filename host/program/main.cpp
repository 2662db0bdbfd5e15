// arxhost: opens a drawing, loads a module, feeds it input and saves the drawing.
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>

#include "host/editor/scriptreader.h"
#include "host/program/options.h"
#include "host/program/platform.h"
#include "host/program/session.h"
#include "host/runtime/locale.h"
#include "host/windows/text.h"

namespace
{
int runStandardInput(const host::Options& options)
{
    if (const auto status = host::runAtTerminal(options))
    {
        return *status;
    }
    host::LineReader reader(std::cin, false);
    return host::runSession(options, reader);
}

int runScript(const host::Options& options)
{
    std::ifstream script(host::pathOf(options.script), std::ios::binary);
    if (!script)
    {
        host::printError(options.script + ": cannot be read");
        return EXIT_FAILURE;
    }
    if (host::isHostScript(host::pathOf(options.script)))
    {
        host::ScriptReader reader(script);
        return host::runSession(options, reader);
    }
    host::LineReader reader(script, false);
    return host::runSession(options, reader);
}

// What opens the settings dialog and leaves it again, for a picture that nobody wrote a script for.
std::string answersForPicture(const host::Options& options)
{
    const char* const settings = options.locale == host::russianLocale ? "Н" : "S";
    return std::string("zv_netrax\n") + settings + "\n^C\n^C\n";
}

int run(const host::Options& options)
{
    if (options.quiet && !host::silenceOutput())
    {
        host::printError("standard output cannot be closed");
        return EXIT_FAILURE;
    }
    if (options.script.empty() && !options.dialogPicture.empty())
    {
        std::istringstream answers(answersForPicture(options));
        host::LineReader reader(answers, false);
        return host::runSession(options, reader);
    }
    const bool fromFile = !options.script.empty() && options.script != "-";
    return fromFile ? runScript(options) : runStandardInput(options);
}
}  // namespace

int main(int count, char** arguments)
{
    std::set_terminate(host::endAtOnce);
    host::beginProcess();
    int status = EXIT_SUCCESS;
    const auto options = host::parseOptions(host::givenArguments(count, arguments), status);
    return options ? run(*options) : status;
}
