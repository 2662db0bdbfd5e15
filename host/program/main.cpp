// arxhost: opens a drawing, loads a module, feeds it input and saves the drawing.
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "host/editor/scriptreader.h"
#include "host/editor/scripttext.h"
#include "host/program/options.h"
#include "host/program/platform.h"
#include "host/program/session.h"
#include "host/runtime/locale.h"
#include "host/windows/text.h"

namespace
{
int runStandardInput(const host::Options& options)
{
    // A quiet run shows no questions, so a person at the terminal could not answer them.
    if (const auto status = options.quiet ? std::nullopt : host::runAtTerminal(options))
    {
        return *status;
    }
    host::LineReader reader(std::cin, false);
    return host::runSession(options, reader);
}

// Runs a script from a file. Checks the whole text before the first answer, so that a damaged
// script does not run halfway.
int runText(const host::Options& options, std::istream& script, bool byHostRules)
{
    const std::string bytes(std::istreambuf_iterator<char>(script), {});
    const host::Result<std::string> text = host::scriptText(bytes, options.script);
    if (!text)
    {
        host::printError(text.failure().line);
        return EXIT_FAILURE;
    }
    if (byHostRules)
    {
        host::ScriptReader reader(*text);
        return host::runSession(options, reader);
    }
    std::istringstream lines(*text);
    host::LineReader reader(lines, false, options.script);
    return host::runSession(options, reader);
}

int runScript(const host::Options& options)
{
    const std::filesystem::path file = host::pathOf(options.script);
    std::ifstream script(file, std::ios::binary);
    if (!script)
    {
        host::printError(options.script + ": cannot be read");
        return EXIT_FAILURE;
    }
    const bool byHostRules = host::isHostScript(file);
    if (byHostRules || std::filesystem::is_regular_file(file))
    {
        return runText(options, script, byHostRules);
    }
    // A program behind a pipe may wait for our output, so its lines are taken one by one.
    host::LineReader reader(script, false, options.script);
    return host::runSession(options, reader);
}

// Returns answers that open and close the settings dialog, for a picture without a script.
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
    if (options)
    {
        status = run(*options);
    }
    host::beforeTheEnd(status);
    return status;
}
