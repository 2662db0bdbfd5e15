#include "tests/exhaustion/run.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iterator>
#include <string>

#include "tests/exhaustion/desk.h"
#include "tests/exhaustion/scarcity.h"

namespace fs = std::filesystem;

namespace
{
const char* const settings = "properties.ini";

// Each job writes one file beside the settings. Two files that fail are reported in two lines.
const Job jobs[] = {
    {"a grid from lines",
     "typed.txt",
     "zv_netrax\n0,0\n25,15\nA\n",
     {"--save", "saved.dxf"},
     {settings, "saved.dxf"}},
    {"a grid from a script",
     "typed.scr",
     "zv_netrax 0,0 25,15 A\n",
     {"--save", "saved.dxf"},
     {settings, "saved.dxf"}},
    {"a plot",
     "plotted.txt",
     "zv_netrax\n0,0\n25,15\nA\n",
     {"--plot", "plot.png"},
     {settings, "plot.png"}},
    {"a picture of a dialog",
     "clicked.txt",
     "zv_netrax\nS\nset 107 12\nclick 1\n0,0\n25,15\nA\n",
     {"--dialog-picture", "dialog.png"},
     {settings, "dialog.png"}},
};

// A way in which a resource runs out.
struct Mode
{
    const char* name;
    scarcity::Of what;
    bool forGood;
    int error;
    long everyFewth = 1;  // one request in so many is refused
};

const Mode modes[] = {
    {"memory, once", scarcity::Of::memory, false, ENOMEM},
    {"memory, from then on", scarcity::Of::memory, true, ENOMEM, 11},
    {"a full disk", scarcity::Of::files, false, ENOSPC},
    {"a full disk for good", scarcity::Of::files, true, ENOSPC},
    {"no space left", scarcity::Of::space, true, ENOSPC},
    {"a broken disk", scarcity::Of::files, false, EIO},
    {"a broken disk for good", scarcity::Of::files, true, EIO},
    {"reads and writes cut", scarcity::Of::fileLength, false, 0},
    {"all of them cut", scarcity::Of::fileLength, true, 0},
};

// The expected contents of the files.
struct Known
{
    Results old;
    Results wanted;           // after a run without refusals
    Results withoutSettings;  // the same, if there had been no settings
    Results wantedButSettings;
};

// The contents that the files may have after a run that ended with status 0 although a call on the
// settings was refused. The module ignores all these failures and goes on drawing.
struct Allowed
{
    const char* reason;
    Results Known::*results;
};

const Allowed allowed[] = {
    {"settings that cannot be read are as good as none: the grid is drawn by the defaults, and "
     "these are what the accepted grid leaves",
     &Known::withoutSettings},
    {"settings that cannot be written stay as they were", &Known::wantedButSettings},
};

// The record that all processes share.
struct Board
{
    std::atomic<long> tried;
    std::atomic<long> failed;
    std::atomic<long> used[std::size(allowed)];
};
Board* board;

template <class Shared>
Shared* shared()
{
    return static_cast<Shared*>(
        mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
}

// The report of a run to its worker.
struct Told
{
    scarcity::Refused refused;
    long requests;
};

Told* told;

void tellRequests()
{
    told->requests = scarcity::requests();
}

// A process that does a part of the work.
class Worker
{
public:
    Worker(const fs::path& folder, int number, int count)
        : m_folder(folder), m_number(number), m_count(count)
    {
        told = shared<Told>();
    }

    void work();

private:
    bool learn(const Desk& desk, const Job& job);
    void tryMode(const Desk& desk, const Job& job, const Mode& mode);
    void tryOnce(const Desk& desk, const Job& job, const Mode& mode, long number);
    int statusOf(const Desk& desk, const std::function<void()>& beginScarcity) const;
    long requestsOf(const Desk& desk, scarcity::Of what) const;
    bool isAllowed(const Results& now, const Mode& mode) const;
    std::string complaint(const Desk& desk, const Mode& mode, int status) const;

    fs::path m_folder;
    int m_number;
    int m_count;
    Known m_known;
    std::ptrdiff_t m_files = 0;
};

int Worker::statusOf(const Desk& desk, const std::function<void()>& beginScarcity) const
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

// Returns the number of requests in a run without refusals, or 0 if that run fails.
long Worker::requestsOf(const Desk& desk, scarcity::Of what) const
{
    desk.layOut();
    const auto count = [what]
    {
        std::atexit(tellRequests);
        scarcity::start(what, 1000000000, false);
    };
    return statusOf(desk, count) == 0 ? told->requests : 0;
}

bool Worker::learn(const Desk& desk, const Job& job)
{
    const auto results = [&](bool withSettings)
    {
        desk.layOut();
        if (!withSettings)
        {
            desk.takeSettingsAway();
        }
        return statusOf(desk, [] {}) == 0 ? desk.results() : Results();
    };
    m_known.withoutSettings = results(false);
    m_known.wanted = results(true);
    desk.layOut();
    m_files = desk.fileCount();
    m_known.old = m_known.wantedButSettings = desk.results();
    const bool learnt = m_known.wanted.size() == m_known.old.size() &&
                        m_known.wanted != m_known.old && m_known.wanted != m_known.withoutSettings;
    if (!learnt)
    {
        ++board->failed;
        std::printf("FAILED %s without a fault: %s\n", job.name, desk.errors().c_str());
        return false;
    }
    std::copy(m_known.wanted.begin() + 1, m_known.wanted.end(),
              m_known.wantedButSettings.begin() + 1);
    return true;
}

bool Worker::isAllowed(const Results& now, const Mode& mode) const
{
    const bool may = (mode.what == scarcity::Of::files || mode.what == scarcity::Of::space) &&
                     std::strstr(told->refused.last, settings) != nullptr;
    for (std::size_t i = 0; i < std::size(allowed) && may; ++i)
    {
        if (now == m_known.*allowed[i].results)
        {
            ++board->used[i];
            return true;
        }
    }
    return false;
}

bool isOneLine(const std::string& errors)
{
    return errors.starts_with("arxhost: ") && errors.find('\n') == errors.size() - 1;
}

// Returns the complaint about the run, or an empty text when there is none.
std::string Worker::complaint(const Desk& desk, const Mode& mode, int status) const
{
    if (!WIFEXITED(status) || WEXITSTATUS(status) > 1)
    {
        return WIFSIGNALED(status) ? strsignal(WTERMSIG(status)) : "a strange status";
    }
    const Results now = desk.results();
    if (status == 0)
    {
        return now == m_known.wanted || isAllowed(now, mode)
                   ? ""
                   : "it ends well without having done its work";
    }
    if (mode.what == scarcity::Of::fileLength || !isOneLine(desk.errors()))
    {
        return "it does not say so in one line: " + desk.errors();
    }
    for (std::size_t i = 0; i < now.size(); ++i)
    {
        if (now[i] != m_known.wanted[i] && now[i] != m_known.old[i])
        {
            return "a file is neither the old nor the new one";
        }
    }
    return "";
}

void Worker::tryOnce(const Desk& desk, const Job& job, const Mode& mode, long number)
{
    told->refused = {};
    const int status = statusOf(desk,
                                [&]
                                {
                                    scarcity::noteRefusedIn(&told->refused);
                                    scarcity::start(mode.what, number, mode.forGood, mode.error);
                                });
    std::string what = complaint(desk, mode, status);
    if (desk.fileCount() != m_files && !(told->refused.deletion && desk.tidyUp()))
    {
        what += " other files are left";
    }
    ++board->tried;
    if (!what.empty())
    {
        ++board->failed;
        std::printf("FAILED %s, %s, request %ld, %s: %s\n", job.name, mode.name, number,
                    told->refused.last, what.c_str());
        std::fflush(stdout);
    }
}

void Worker::tryMode(const Desk& desk, const Job& job, const Mode& mode)
{
    const long requests = requestsOf(desk, mode.what);
    if (requests < 3)
    {
        ++board->failed;
        std::printf("FAILED %s, %s: only %ld requests\n", job.name, mode.name, requests);
        return;
    }
    if (m_number == 0)
    {
        std::printf("%s, %s: %ld requests\n", job.name, mode.name, requests);
        std::fflush(stdout);
    }
    const long first = (1 + m_number) * mode.everyFewth;
    for (long number = first; number <= requests; number += m_count * mode.everyFewth)
    {
        desk.layOut();
        tryOnce(desk, job, mode, number);
    }
}

void Worker::work()
{
    for (const Job& job : jobs)
    {
        const Desk desk(m_folder / (job.script + std::to_string(m_number)), job);
        for (const Mode& mode : modes)
        {
            if (learn(desk, job))
            {
                tryMode(desk, job, mode);
            }
        }
    }
    std::fflush(stdout);
}

// Returns the number of reasons that no run has met; such a reason is obsolete.
long reasonsNotMet()
{
    long count = 0;
    for (std::size_t i = 0; i < std::size(allowed); ++i)
    {
        const long used = board->used[i];
        std::printf("%ld runs: %s\n", used, allowed[i].reason);
        count += used == 0 ? 1 : 0;
    }
    return count;
}
}  // namespace

Tried tryRuns(const fs::path& folder, int everyFewth)
{
    board = shared<Board>();
    const int workers = int(std::max(1L, sysconf(_SC_NPROCESSORS_ONLN)));
    std::fflush(stdout);
    for (int number = 0; number < workers; ++number)
    {
        if (fork() == 0)
        {
            Worker(folder, number, workers * everyFewth).work();
            _exit(0);
        }
    }
    bool ended = true;
    for (int status = 0; wait(&status) > 0;)
    {
        ended = ended && status == 0;
    }
    return {board->tried,
            board->failed + (everyFewth == 1 ? reasonsNotMet() : 0) + (ended ? 0 : 1)};
}
