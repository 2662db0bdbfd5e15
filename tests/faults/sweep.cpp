// Runs scripts again and again, each time with other calls of the host failing, and looks after
// each run whether the module has left everything as it found it.
//
// usage: fault_sweep [--list | N]     (--list: prints the calls that can be failed, by symbol and
// name; N: every Nth fault only)
#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/runtime/locale.h"
#include "tests/faults/allowed.h"
#include "tests/faults/run.h"
#include "tests/support/scratchfolder.h"

namespace fs = std::filesystem;

namespace
{
const unsigned secondsForARun = 5;

// The record that a worker and its runs share.
struct Board
{
    int callCount;
    faults::Call calls[20000];
    char complaints[4000];
};

class Worker
{
public:
    // Takes one in `step` of the plans, from plan `number` on.
    Worker(const fs::path& folder, unsigned number, unsigned step)
        : m_folder(folder / std::to_string(number)), m_number(number), m_step(step)
    {
        fs::create_directory(m_folder);
        const fs::path module = fs::read_symlink("/proc/self/exe").replace_filename("netrax.arx");
        fs::create_symlink(module, m_folder / "netrax.arx");
        void* const shared =
            mmap(nullptr, sizeof(Board), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        m_board = static_cast<Board*>(shared);
    }

    int run();

    long tried = 0;
    long failed = 0;

private:
    void sweep(const Script& script);
    void requireAllSeen();
    void attempt(const Script& script, const faults::Plan& plan);
    bool attemptHere(const Script& script, const faults::Plan& plan);
    std::vector<faults::Call> callsOf(const Script& script);
    const char* nameOf(const faults::Plan& plan) const;
    std::set<std::string> failedBy(const faults::Plan& plan) const;

    fs::path m_folder;
    unsigned m_number;
    unsigned m_step;
    long m_plan = 0;
    std::set<std::string> m_seen;       // the names of calls
    std::vector<faults::Call> m_calls;  // the calls of the current script without a fault
    Board* m_board;
};

// Returns the file with the host's message when it ends a run.
fs::path reportOf(const fs::path& folder)
{
    return folder / "report.txt";
}

std::string report(const fs::path& folder)
{
    std::ifstream file(reportOf(folder));
    return {std::istreambuf_iterator<char>(file), {}};
}

// Runs a separate process, which ends with 0 when nothing is wrong.
void runInChild(const fs::path& folder, const Script& script, const faults::Plan& plan,
                Board& board)
{
    alarm(secondsForARun);
    const int file = open(reportOf(folder).c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(file, STDERR_FILENO);
    const std::string complaints = runOnce(script, plan);
    const auto& calls = faults::calls();
    board.callCount = int(std::min(calls.size(), std::size(board.calls)));
    std::copy_n(calls.begin(), board.callCount, board.calls);
    std::snprintf(board.complaints, sizeof board.complaints, "%s%s", complaints.c_str(),
                  complaints.empty() ? "" : faults::failures().c_str());
    _exit(complaints.empty() ? 0 : 3);
}

std::string told(const fs::path& folder, int status)
{
    if (WIFSIGNALED(status))
    {
        return WTERMSIG(status) == SIGALRM
                   ? "it does not end"
                   : std::string("it is ended by signal ") + strsignal(WTERMSIG(status));
    }
    return "the host stops it: " + report(folder);
}

// Returns the name of the first call that fails.
const char* Worker::nameOf(const faults::Plan& plan) const
{
    const bool known = plan.first >= 0 && std::size_t(plan.first) < m_calls.size();
    return known ? m_calls[std::size_t(plan.first)].name : plan.every != nullptr ? plan.every : "";
}

// Returns the names of the calls that the plan makes fail, as far as a run without a fault makes
// them.
std::set<std::string> Worker::failedBy(const faults::Plan& plan) const
{
    std::set<std::string> names{nameOf(plan)};
    for (std::size_t i = 0; i < m_calls.size(); ++i)
    {
        if (int(i) == plan.second || (plan.fromFirst && int(i) > plan.first))
        {
            names.insert(m_calls[i].name);
        }
    }
    return names;
}

bool Worker::attemptHere(const Script& script, const faults::Plan& plan)
{
    writeOptions(m_folder, script);
    std::strcpy(m_board->complaints, "");
    const pid_t child = fork();
    if (child == 0)
    {
        runInChild(m_folder, script, plan, *m_board);
    }
    int status = 0;
    waitpid(child, &status, 0);
    const bool stopped = WIFEXITED(status) && WEXITSTATUS(status) == EXIT_FAILURE;
    if (status == 0 || (stopped && mayStop(report(m_folder), failedBy(plan))))
    {
        return true;
    }
    const bool complained = WIFEXITED(status) && WEXITSTATUS(status) == 3;
    std::printf("FAILED \"%s\" with call %d %s%s%s%s (outcome %u): %s\n", script.name, plan.first,
                nameOf(plan), plan.fromFirst ? " and all later ones" : "",
                plan.second >= 0 ? (" and " + std::to_string(plan.second)).c_str() : "",
                plan.every != nullptr ? ", every time" : "", plan.outcome,
                complained ? m_board->complaints : told(m_folder, status).c_str());
    std::fflush(stdout);
    return false;
}

void Worker::attempt(const Script& script, const faults::Plan& plan)
{
    if (m_plan++ % m_step != m_number)
    {
        return;
    }
    ++tried;
    failed += attemptHere(script, plan) ? 0 : 1;
}

std::vector<faults::Call> Worker::callsOf(const Script& script)
{
    m_calls.clear();
    if (!attemptHere(script, {}))
    {
        return {};
    }
    return {m_board->calls, m_board->calls + m_board->callCount};
}

void Worker::sweep(const Script& script)
{
    m_calls = callsOf(script);
    const std::vector<faults::Call>& calls = m_calls;
    if (calls.empty())
    {
        ++failed;
        std::printf("FAILED \"%s\" makes no call\n", script.name);
        return;
    }
    std::map<std::string, faults::Call> names;
    for (int i = 0; i < int(calls.size()); ++i)
    {
        const faults::Call& call = calls[std::size_t(i)];
        m_seen.insert(call.name);
        names.emplace(call.name, call);
        for (unsigned outcome = 0; outcome < call.outcomes; ++outcome)
        {
            attempt(script, {.first = i, .outcome = outcome});
        }
        // The later calls fail even where this one cannot fail each time.
        for (unsigned outcome = 0; outcome < std::max(1u, call.outcomes - call.onceOnly); ++outcome)
        {
            attempt(script, {.first = i, .fromFirst = true, .outcome = outcome});
        }
    }
    for (const auto& [name, call] : names)
    {
        for (unsigned outcome = 0; outcome < call.outcomes - call.onceOnly; ++outcome)
        {
            attempt(script, {.every = call.name, .outcome = outcome});
        }
    }
    const bool pairs = script.kind == Script::Kind::allPairs;
    for (int i = 0; pairs && i < int(calls.size()); ++i)
    {
        for (int k = i + 1; k < int(calls.size()); ++k)
        {
            attempt(script, {.first = i, .second = k});
        }
    }
    if (m_number == 0)
    {
        std::printf("%s: %zu calls of %zu kinds\n", script.name, calls.size(), names.size());
        std::fflush(stdout);
    }
}

// Checks that the scripts make every call. A missing call is one that the module no longer makes,
// or that this program never received.
void Worker::requireAllSeen()
{
    for (const faults::Row& row : faults::listed())
    {
        if (!m_seen.contains(row.name))
        {
            ++failed;
            std::printf("FAILED no script makes the call %s\n", row.name);
        }
    }
    std::printf("%zu kinds of calls\n", m_seen.size());
    std::fflush(stdout);
}

int Worker::run()
{
    fs::current_path(m_folder);  // without its own path the module uses the current folder
    openDrawing();
    bool loaded = false;
    for (const Script& script : scripts())
    {
        if (script.kind != Script::Kind::loads && !std::exchange(loaded, true))
        {
            const std::string error = loadModule();
            if (!error.empty())
            {
                std::printf("%s\n", error.c_str());
                return 1;
            }
        }
        sweep(script);
    }
    if (m_number == 0)
    {
        requireAllSeen();
    }
    return 0;
}

struct Totals
{
    long tried;
    long failed;
};
}  // namespace

int main(int count, char** arguments)
{
    if (count > 1 && std::string_view(arguments[1]) == "--list")
    {
        for (const faults::Row& row : faults::listed())
        {
            std::printf("%s %s\n", row.symbol, row.name);
        }
        return 0;
    }
    const unsigned everyFewth = count > 1 ? unsigned(std::atoi(arguments[1])) : 1;
    if (everyFewth == 0)
    {
        std::fprintf(stderr, "usage: fault_sweep [--list | N]\n");
        return 2;
    }
    shareAllowances();
    host::setProductLocale(host::englishLocale);
    const fs::path folder = support::scratchFolder();
    const unsigned workers = unsigned(std::max(1L, sysconf(_SC_NPROCESSORS_ONLN)));
    auto* const totals =
        static_cast<Totals*>(mmap(nullptr, sizeof(Totals) * workers, PROT_READ | PROT_WRITE,
                                  MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    std::fflush(stdout);
    for (unsigned number = 0; number < workers; ++number)
    {
        if (fork() == 0)
        {
            Worker worker(folder, number, workers * everyFewth);
            const int status = worker.run();
            totals[number] = {worker.tried, worker.failed + status};
            std::fflush(stdout);
            _exit(status);
        }
    }
    bool ended = true;
    for (int status = 0; wait(&status) > 0;)
    {
        ended = ended && status == 0;
    }
    fs::remove_all(folder);
    Totals all{};
    for (unsigned number = 0; number < workers; ++number)
    {
        all.tried += totals[number].tried;
        all.failed += totals[number].failed;
    }
    const auto unused = everyFewth == 1 ? unusedAllowances() : std::vector<std::string>();
    for (const std::string& allowance : unused)
    {
        ++all.failed;
        std::printf("FAILED no run needs the allowance for %s\n", allowance.c_str());
    }
    all.failed += ended || all.failed > 0 ? 0 : 1;
    std::printf("%ld faults tried\n%ld passed, %ld failed\n", all.tried, all.tried - all.failed,
                all.failed);
    return all.failed == 0 && all.tried > 0 ? 0 : 1;
}
