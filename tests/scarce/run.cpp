#include "tests/scarce/run.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "tests/scarce/scarcity.h"

// The program's own main, under this name.
int arxhostMain(int count, char** arguments);

namespace fs = std::filesystem;

namespace
{
const unsigned secondsForARun = 5;
const long everyFewth = 11;  // of the requests is refused with all that follow as well

struct Job
{
    const char* name;
    const char* script;  // the file that holds what is typed
    const char* typed;
    std::vector<std::string> results;  // files
};

const std::string oldSettings =
    "[GRID]\r\nHorStep=10.0000\r\nVertStep=10.0000\r\nColor=12\r\nneedText=1\r\nbXTopScribe=1\r\n"
    "[OTHER]\r\nkept=as it is\r\n";
const std::string oldFile = "an older file";

const Job jobs[] = {
    {"a grid from lines",
     "typed.txt", "zv_netrax\n0,0\n25,15\nA\n",
     {"properties.ini", "saved.dxf"}},
    {"a grid from a script",
     "typed.scr", "zv_netrax 0,0 25,15 A\n",
     {"properties.ini", "saved.dxf"}},
};

std::string contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// What a run is given, in a folder of its own.
class Desk
{
public:
    Desk(const fs::path& folder, const Job& job) : m_folder(folder), m_job(job)
    {
        fs::create_directory(folder);
        const fs::path module = fs::read_symlink("/proc/self/exe").replace_filename("netrax.arx");
        fs::create_symlink(module, folder / "netrax.arx");
        std::ofstream(folder / job.script) << job.typed;
    }

    void clear() const
    {
        std::ofstream(m_folder / "properties.ini", std::ios::binary) << oldSettings;
        std::ofstream(m_folder / "saved.dxf") << oldFile;
    }

    std::vector<std::string> results() const
    {
        std::vector<std::string> all;
        for (const std::string& name : m_job.results)
        {
            all.push_back(contents(m_folder / name));
        }
        return all;
    }

    // Ends with its status.
    [[noreturn]] void run(const std::function<void()>& beginScarcity) const
    {
        alarm(secondsForARun);
        fs::current_path(m_folder);
        const int errors = open("errors.txt", O_WRONLY | O_CREAT | O_TRUNC, 0600);
        dup2(errors, STDERR_FILENO);
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        std::vector<std::string> words = {"arxhost",    "--module", "./netrax.arx", "--script",
                                          m_job.script, "--save",   "saved.dxf"};
        std::vector<char*> arguments;
        for (std::string& word : words)
        {
            arguments.push_back(word.data());
        }
        beginScarcity();
        std::exit(arxhostMain(int(arguments.size()), arguments.data()));
    }

    std::string errors() const { return contents(m_folder / "errors.txt"); }
    std::ptrdiff_t fileCount() const { return std::distance(fs::directory_iterator(m_folder), {}); }

private:
    fs::path m_folder;
    const Job& m_job;
};

// Shared by the processes.
struct Board
{
    long requests;  // of a run in which none was refused
    std::atomic<long> tried;
    std::atomic<long> failed;
};
Board* board;

void keepRequests()
{
    board->requests = scarcity::requests();
}

int statusOf(const Desk& desk, const std::function<void()>& beginScarcity)
{
    const pid_t child = fork();
    if (child == 0)
    {
        desk.run(beginScarcity);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

// The first run, in which nothing is refused, tells how often memory is asked for.
std::vector<std::string> resultsWithout(const Desk& desk)
{
    desk.clear();
    const int status = statusOf(desk,
                                []
                                {
                                    std::atexit(keepRequests);
                                    scarcity::start(scarcity::Of::memory, 1000000000, false);
                                });
    return status == 0 ? desk.results() : std::vector<std::string>();
}

bool isOneLine(const std::string& errors)
{
    return errors.starts_with("arxhost: ") && errors.find('\n') == errors.size() - 1;
}

// Empty when all is well.
std::string complaint(const Desk& desk, int status, const std::vector<std::string>& wanted,
                      const std::vector<std::string>& old)
{
    if (!WIFEXITED(status) || WEXITSTATUS(status) > 1)
    {
        return WIFSIGNALED(status) ? strsignal(WTERMSIG(status)) : "a strange status";
    }
    if (status != 0 && !isOneLine(desk.errors()))
    {
        return "it does not say so in one line: " + desk.errors();
    }
    const std::vector<std::string> now = desk.results();
    for (std::size_t i = 0; i < now.size(); ++i)
    {
        if (now[i] != wanted[i] && (status == 0 || now[i] != old[i]))
        {
            return status == 0 ? "it ends well without having done its work"
                               : "a file is neither the old nor the new one";
        }
    }
    return "";
}

void tryJob(const Desk& desk, const Job& job, int worker, int workers)
{
    const std::vector<std::string> wanted = resultsWithout(desk);
    desk.clear();
    const std::vector<std::string> old = desk.results();
    const std::ptrdiff_t files = desk.fileCount();
    const long requests = board->requests;
    if (wanted.empty() || wanted == old || requests < 1000)
    {
        ++board->failed;
        std::printf("FAILED %s without a fault: %s\n", job.name, desk.errors().c_str());
        return;
    }
    if (worker == 0)
    {
        std::printf("%s: %ld requests for memory\n", job.name, requests);
        std::fflush(stdout);
    }
    for (long number = 1 + worker; number <= requests; number += workers)
    {
        const bool forGood = number % everyFewth == 0;
        for (const bool always : {false, true})
        {
            if (always && !forGood)
            {
                continue;
            }
            const int status = statusOf(
                desk, [&] { scarcity::start(scarcity::Of::memory, number, always, ENOMEM); });
            std::string what = complaint(desk, status, wanted, old);
            what += desk.fileCount() == files ? "" : " other files are left";
            ++board->tried;
            if (!what.empty())
            {
                ++board->failed;
                std::printf("FAILED %s, memory%s, request %ld: %s\n", job.name,
                            always ? " from then on" : "", number, what.c_str());
                std::fflush(stdout);
            }
            desk.clear();
        }
    }
}
}  // namespace

Tried tryRuns(const fs::path& folder)
{
    board = static_cast<Board*>(
        mmap(nullptr, sizeof(Board), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    const int workers = int(std::max(1L, sysconf(_SC_NPROCESSORS_ONLN)));
    std::fflush(stdout);
    for (int worker = 0; worker < workers; ++worker)
    {
        if (fork() == 0)
        {
            for (const Job& job : jobs)
            {
                const Desk desk(folder / (job.script + std::to_string(worker)), job);
                tryJob(desk, job, worker, workers);
            }
            std::fflush(stdout);
            _exit(0);
        }
    }
    bool ended = true;
    for (int status = 0; wait(&status) > 0;)
    {
        ended = ended && status == 0;
    }
    return {board->tried, board->failed + (ended ? 0 : 1)};
}
