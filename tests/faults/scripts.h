// The scripts that are typed while calls fail.
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
        allPairs,  // short enough to let all pairs of its calls fail
        loads      // loads and unloads the module, which is loaded already for the other kinds
    };

    const char* name;
    const char* options;  // the lines of properties.ini beside the steps, separated by blanks
    const char* answers;  // separated by bars
    Kind kind = Kind::plain;
};

// Returns the scripts; those that load the module come first.
std::span<const Script> scripts();

std::deque<std::string> parted(const std::string& text, char separator);
// Writes the module's options beside its file, so that every run finds the options of its script.
void writeOptions(const std::filesystem::path& folder, const Script& script);
