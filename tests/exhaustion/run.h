// Runs the whole program while memory runs out.
#pragma once

#include <filesystem>

struct Tried
{
    long requests = 0;  // the number of refused requests
    long failed = 0;
};

// Refuses every request once, and some of them with all that follow. With everyFewth above 1 it
// tries only one in so many requests. Creates files in the folder.
Tried tryRuns(const std::filesystem::path& folder, int everyFewth);
