// What a run of the program is given and what it leaves.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

using Results = std::vector<std::string>;  // what the files hold

struct Job
{
    const char* name;
    const char* script;  // the file that holds what is typed
    const char* typed;
    std::vector<std::string> options;
    std::vector<std::string> results;  // files; the first are the settings
};

// A folder with everything that a run needs.
class Desk
{
public:
    Desk(const std::filesystem::path& folder, const Job& job);

    // Lays out older files where the results go. The fonts change meanwhile.
    void layOut() const;
    void takeSettingsAway() const;
    Results results() const;
    std::string errors() const;
    std::ptrdiff_t fileCount() const;
    // Takes the files away that a save could not; whether there was one.
    bool tidyUp() const;

    // Runs the program in this process, which ends with its status.
    [[noreturn]] void run(const std::function<void()>& beginScarcity) const;

private:
    std::filesystem::path m_folder;
    const Job& m_job;
};
