// The input of a run of the program and the files that it leaves.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

using Results = std::vector<std::string>;  // the contents of the files

struct Job
{
    const char* name;
    const char* script;  // the file with the script
    const char* typed;
    std::vector<std::string> options;
    std::vector<std::string> results;  // files; the first are the settings
};

// A folder with all files of a run.
class Desk
{
public:
    Desk(const std::filesystem::path& folder, const Job& job);

    // Puts older files in the place of the results. The fonts change meanwhile.
    void layOut() const;
    void takeSettingsAway() const;
    Results results() const;
    std::string errors() const;
    std::ptrdiff_t fileCount() const;
    // Removes the files that a save could not remove. Returns true if there was such a file.
    bool tidyUp() const;

    // Runs the program in this process, which ends with its status.
    [[noreturn]] void run(const std::function<void()>& beginScarcity) const;

private:
    std::filesystem::path m_folder;
    const Job& m_job;
};
