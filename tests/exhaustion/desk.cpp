#include "tests/exhaustion/desk.h"

#include <fcntl.h>
#include <sys/time.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>

// The main function of the program, under this name.
int arxhostMain(int count, char** arguments);

namespace fs = std::filesystem;

namespace
{
const unsigned secondsForARun = 60;  // only a broken program needs longer

const std::string oldSettings =
    "[GRID]\r\nHorStep=10.0000\r\nVertStep=10.0000\r\nColor=12\r\nneedText=1\r\nheightText=2."
    "0000\r\n"
    "bXTopScribe=1\r\n[OTHER]\r\nkept=as it is\r\n";
const std::string oldFile = "an older file";

std::string contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Acts as the installation of a font does: the library that draws texts reads its files again in
// every run. The time is that of the library's own clock: the system notes a finer one, which may
// be of the next second, and the library warns of files from the future.
void changeFonts()
{
    if (std::getenv("NETRAX_ALONE") != nullptr)  // the fonts are the test's own
    {
        const timeval now{std::time(nullptr), 0};
        const timeval both[] = {now, now};  // of access, of change
        utimes(std::getenv("FONTCONFIG_FILE"), both);
    }
}
}  // namespace

Desk::Desk(const fs::path& folder, const Job& job) : m_folder(folder), m_job(job)
{
    fs::create_directory(folder);
    const fs::path module = fs::read_symlink("/proc/self/exe").replace_filename("netrax.arx");
    fs::create_symlink(module, folder / "netrax.arx");
    std::ofstream(folder / job.script) << job.typed;
}

void Desk::layOut() const
{
    changeFonts();
    for (const std::string& name : m_job.results)
    {
        std::ofstream(m_folder / name, std::ios::binary)
            << (name == m_job.results.front() ? oldSettings : oldFile);
    }
}

void Desk::takeSettingsAway() const
{
    fs::remove(m_folder / m_job.results.front());
}

Results Desk::results() const
{
    Results all;
    for (const std::string& name : m_job.results)
    {
        all.push_back(contents(m_folder / name));
    }
    return all;
}

std::string Desk::errors() const
{
    return contents(m_folder / "errors.txt");
}

std::ptrdiff_t Desk::fileCount() const
{
    return std::distance(fs::directory_iterator(m_folder), {});
}

bool Desk::tidyUp() const
{
    bool found = false;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder))
    {
        found |= entry.path().extension() == ".tmp" && fs::remove(entry.path());
    }
    return found;
}

void Desk::run(const std::function<void()>& beginScarcity) const
{
    alarm(secondsForARun);
    fs::current_path(m_folder);
    dup2(open("errors.txt", O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
    dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
    std::vector<std::string> words = {"arxhost", "--module", "./netrax.arx", "--script",
                                      m_job.script};
    words.insert(words.end(), m_job.options.begin(), m_job.options.end());
    std::vector<char*> arguments;
    for (std::string& word : words)
    {
        arguments.push_back(word.data());
    }
    beginScarcity();
    std::exit(arxhostMain(int(arguments.size()), arguments.data()));
}
