// The command line of arxhost.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "windows.h"

namespace host
{
// What the command line asks for.
struct Options
{
    std::string drawing;  // empty: a new one
    std::string module;
    std::string script;  // empty: the terminal or standard input as it is; "-" is standard input
    std::string save;    // empty: do not save
    std::string plot;    // empty: do not plot
    LCID locale;
    std::string dialogPicture;  // empty: none
    bool trace = false;
    bool quiet = false;
};

// Reads the arguments, the program's name first. No value when there is nothing to run: the text to
// show has been printed then, and `status` is what the program ends with.
std::optional<Options> parseOptions(std::vector<std::string> arguments, int& status);
}  // namespace host
