#include "host/program/terminal/historyfile.h"

#include <cstdlib>
#include <filesystem>

#include "host/program/platform.h"

namespace host
{
namespace
{
namespace fs = std::filesystem;

fs::path pathFrom(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value ? fs::path(value) : fs::path();
}

fs::path stateOfPrograms()
{
    const fs::path state = pathFrom("XDG_STATE_HOME");
    if (state.is_absolute())  // XDG's rules say to ignore a relative path
    {
        return state;
    }
    const fs::path home = pathFrom("HOME");
    return home.is_absolute() ? home / ".local" / "state" : fs::path();
}
}  // namespace

fs::path stateFolder()
{
    const fs::path state = stateOfPrograms();
    if (state.empty())
    {
        return {};
    }
    std::error_code ignored;
    fs::create_directories(state / "arxhost", ignored);
    return state / "arxhost";
}

std::string historyFile()
{
    const fs::path folder = stateFolder();
    return folder.empty() ? std::string() : (folder / "history").string();
}
}  // namespace host
