#include "host/program/options.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "host/plot/plot.h"
#include "host/program/session.h"
#include "host/text/foldcase.h"
#include "host/runtime/locale.h"
#include "host/basics/result.h"
#include "host/windows/modules.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
namespace fs = std::filesystem;

const int wrongUsage = 2;

// Refuses an empty name, which a script passes when its variable is not set. The host would take it
// for an option that was left out.
const CLI::Validator someName([](const std::string& name)
                              { return name.empty() ? "expected a file's name" : ""; },
                              "");

void describe(CLI::App& app, Options& options, std::string& locale)
{
    app.name("arxhost");
    app.set_version_flag("--version", "arxhost " ARXHOST_VERSION);
    app.add_option("DRAWING", options.drawing,
                   "DXF file to open; left out: a new, empty metric drawing")
        ->check(someName);
    app.add_option("--module", options.module, "module to load")
        ->type_name("FILE")
        ->default_str("netrax.arx beside the program");
    app.add_option(
           "--script", options.script,
           "read input from FILE: one answer a line, or by the rules of the CAD program's "
           "script files if its name ends in .scr; UTF-8, or UTF-16 behind a byte-order mark; "
           "- is standard input")
        ->type_name("FILE");
    app.add_option("--locale", locale, "product locale: en-US or ru-RU")
        ->type_name("NAME")
        ->check(CLI::IsMember({"en-US", "ru-RU"}))
        ->default_str("en-US");
    app.add_option(
           "--save", options.save,
           "save the drawing as DXF after the input has ended; the name ends in .dxf unless "
           "it is that of a device or pipe")
        ->type_name("FILE.dxf")
        ->check(someName);
    app.add_option("--plot", options.plot,
                   "draw model space, all of it and looked at as in the drawing's view, after the "
                   "input has ended")
        ->type_name("FILE.png|pdf|svg")
        ->check(CLI::Validator(
            [](const std::string& file)
            { return isPlotFile(file) ? "" : file + ": expected .png, .pdf or .svg"; },
            ""));
    app.add_option("--dialog-picture", options.dialogPicture,
                   "draw the last dialog shown as it stood when it closed; without --script the "
                   "module's settings dialog is opened for it")
        ->type_name("FILE.png");
    app.add_flag("--trace", options.trace, "tell of the progress meter as well");
    app.add_flag("--quiet", options.quiet, "print nothing but errors");
}

int reportUsage(CLI::App& app, const CLI::ParseError& error)
{
    if (error.get_exit_code() == 0)
    {
        app.exit(error);
        return EXIT_SUCCESS;
    }
    printError(error.what() +
               std::string("\nusage: arxhost [DRAWING] [options]; see arxhost --help"));
    return wrongUsage;
}

bool scriptIsMissing(const Options& options)
{
    return !options.script.empty() && options.script != "-" &&
           (!fs::exists(pathOf(options.script)) || fs::is_directory(pathOf(options.script)));
}

bool endsIn(const std::string& file, std::wstring_view ending)
{
    return equalNoCase(fromUtf8(pathOf(file).extension().string()), ending);
}

// Tells whether the name needs no ending, because it is that of a device, a pipe, a folder or an
// open output of the program. A later check finds out whether it can be written.
bool isNoFile(const std::string& name)
{
    std::error_code ignored;
    const fs::file_status status = fs::status(pathOf(name), ignored);
    return name == "/dev/stdout" || name == "/dev/stderr" || name.starts_with("/dev/fd/") ||
           (fs::exists(status) && !fs::is_regular_file(status));
}

// Checks that the script exists and that the names of the outputs have the right endings.
Result<> checkNames(const Options& options)
{
    if (scriptIsMissing(options))
    {
        return Failure{options.script + ": no such script"};
    }
    if (!options.save.empty() && !endsIn(options.save, L".dxf") && !isNoFile(options.save))
    {
        return Failure{options.save + ": expected .dxf, as what is saved is DXF"};
    }
    if (!options.dialogPicture.empty() && !endsIn(options.dialogPicture, L".png"))
    {
        return Failure{options.dialogPicture + ": expected .png"};
    }
    return Done{};
}
}  // namespace

std::optional<Options> parseOptions(std::vector<std::string> arguments, int& status)
{
    CLI::App app("Opens a drawing, loads a module, feeds it input and saves the drawing.");
    Options options{};
    std::string locale = "en-US";
    describe(app, options, locale);
    try
    {
        // CLI11 takes the arguments in reverse order and without the program's name.
        arguments.erase(arguments.begin());
        std::ranges::reverse(arguments);
        app.parse(std::move(arguments));
    }
    catch (const CLI::ParseError& error)
    {
        status = reportUsage(app, error);
        return std::nullopt;
    }
    if (const Result<> checked = checkNames(options); !checked)
    {
        printError(checked.failure().line);
        status = wrongUsage;
        return std::nullopt;
    }
    options.locale = locale == "ru-RU" ? russianLocale : englishLocale;
    if (options.module.empty())
    {
        options.module = (modulePath(nullptr).parent_path() / "netrax.arx").string();
    }
    return options;
}
}  // namespace host
