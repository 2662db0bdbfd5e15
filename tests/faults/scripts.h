// What is typed while calls fail.
#pragma once

#include <deque>
#include <filesystem>
#include <span>
#include <string>

struct Script
{
    enum class Kind
    {
        plain,
        allPairs,  // short enough for all pairs of its calls to fail
        loads      // the module, otherwise there, is loaded before and unloaded after
    };

    const char* name;
    const char* options;  // lines of properties.ini beside the steps, parted by blanks
    const char* answers;  // parted by bars
    Kind kind = Kind::plain;
};

// Those that load come first.
std::span<const Script> scripts();

std::deque<std::string> parted(const std::string& text, char separator);
// The module's options beside its file; every run finds them as the script has them.
void writeOptions(const std::filesystem::path& folder, const Script& script);
