// Whole runs of the program while memory runs out.
#pragma once

#include <filesystem>

struct Tried
{
    long requests = 0;  // that were refused
    long failed = 0;
};

// Refuses every request once, and some of them with all that follow; with everyFewth above 1 only
// every so many of them. Makes files in the folder.
Tried tryRuns(const std::filesystem::path& folder, int everyFewth);
