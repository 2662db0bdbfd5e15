// Whole runs of the program while memory runs out.
#pragma once

#include <filesystem>

struct Tried
{
    long requests = 0;  // that were refused
    long failed = 0;
};

// Every request once, and some of them with all that follow. Files are made in the folder.
Tried tryRuns(const std::filesystem::path& folder);
