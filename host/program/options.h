// The command line of arxhost.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "windows.h"

namespace host
{
// What the command line asks for. File names are in UTF-8.
struct Options
{
    std::string drawing;  // empty: a new drawing
    std::string module;
    std::string script;  // empty: the terminal or standard input; "-": standard input
    std::string save;    // empty: do not save
    std::string plot;    // empty: do not plot
    LCID locale;
    std::string dialogPicture;  // empty: no picture
    bool trace = false;
    bool quiet = false;
};

// Parses the arguments, of which the first is the program's name. Returns no value when the program
// has nothing to run; help or a complaint has been printed then, and `status` is the status with
// which the program ends.
std::optional<Options> parseOptions(std::vector<std::string> arguments, int& status);
}  // namespace host
