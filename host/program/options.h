// The command line of arxhost.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "windows.h"

namespace host
{
// The requests of the command line. File names are in UTF-8.
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

// Parses the arguments, the first of which is the program's name. Returns no value when the program
// has nothing to run; the function has then printed help or a complaint, and `status` is the status
// with which the program ends.
std::optional<Options> parseOptions(std::vector<std::string> arguments, int& status);
}  // namespace host
