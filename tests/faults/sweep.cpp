// Runs scripts again and again, each time with other calls of the host failing, and looks after
// each run whether the module has left everything as it found it.
#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <deque>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "host/documents/documentmanager.h"
#include "host/dxf/drawingfile.h"
#include "host/editor/commands.h"
#include "host/editor/editor.h"
#include "host/editor/hostcommands.h"
#include "host/runtime/linker.h"
#include "host/runtime/locale.h"
#include "tests/faults/allowed.h"
#include "tests/faults/faults.h"
#include "tests/support/session.h"

namespace fs = std::filesystem;

namespace
{
const unsigned secondsForARun = 5;

struct Script
{
    const char* name;
    const char* options;  // lines of properties.ini beside the steps, parted by blanks
    const char* answers;  // parted by bars
};

#define GRID "zv_netrax|0,0|25,15|"
#define LABELS                                                                  \
    "needText=1 bXTopScribe=1 bXBottomScribe=1 bXLeftScribe=1 bXRightScribe=1 " \
    "bYTopScribe=1 bYBottomScribe=1 bYLeftScribe=1 bYRightScribe=1 "

// Two columns and one row of cells, so that every call has its turn and a run is short. Of the
// first two all pairs of calls fail as well.
const Script scripts[] = {
    {"cancelled at the first corner",   "",                         "zv_netrax|^C"                     },
    {"a large grid that is not wanted", "HorStep=0.2 VertStep=0.2", GRID "no"                          },
    {"lines along the world",           "",                         GRID "A"                           },
    {"lines along the UCS",             "WCSBasePoint=1",           GRID "A"                           },
    {"crosses",                         "LookType=1 crossSize=4",   GRID "A"                           },
    {"labels along the world",          LABELS,                     GRID "A"                           },
    {"labels along the UCS",            LABELS "WCSBasePoint=1",    GRID "A"                           },
    {"cancelled",                       "",                         GRID "^C"                          },
    {"drawn again and accepted",        "",                         GRID "x|A"                         },
    {"two grids",                       "",                         GRID "A|" GRID "A"                 },
    {"a dialog with picks",             "",
     "zv_netrax|S|click 110|0,0|10,0|click 124|5,5|set 107 12|click 1|0,0|25,15|A"                     },
    {"a dialog that is cancelled",      "",                         "zv_netrax|S|set 107 12|click 2|^C"},
};

std::deque<std::string> parted(const std::string& text, char separator)
{
    std::deque<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
    {
        parts.push_back(part);
    }
    return parts;
}

// The module's options beside its file; every run finds them as the script has them.
void writeOptions(const fs::path& folder, const Script& script)
{
    std::ofstream file(folder / "properties.ini", std::ios::binary);
    file << "[GRID]\r\nHorStep=10.0000\r\nVertStep=10.0000\r\nColor=12\r\nheightText=2.0000\r\n";
    for (const std::string& option : parted(script.options, ' '))
    {
        file << option << "\r\n";  // the last of two counts
    }
}

struct State
{
    AcGeMatrix3d ucs;
    int icon;
    int follow;
    double equalPoint;
    double equalVector;
    std::size_t resources;
};

State stateNow()
{
    const host::Document& document = *host::documents().document();
    const host::DrawingState& drawing = document.database()->core().state;
    return {drawing.modelUcs.toWorld,
            drawing.ucsIcon,
            drawing.ucsFollow,
            AcGeContext::gTol.equalPoint(),
            AcGeContext::gTol.equalVector(),
            document.resources.depth()};
}

// What the run has left otherwise than it found it.
std::string differences(const State& before, const State& after)
{
    const std::pair<const char*, bool> rows[] = {
        {"UCS",                                                                            std::memcmp(&before.ucs, &after.ucs, sizeof before.ucs) != 0},
        {"UCSICON",                                                         before.icon != after.icon                                                                               },
        {"UCSFOLLOW",before.follow != after.follow},
        {"tolerance",
         before.equalPoint != after.equalPoint || before.equalVector != after.equalVector                                                                                                                                     },
        {"resource handles", before.resources != after.resources},
    };
    std::string list;
    for (const auto& [name, differs] : rows)
    {
        list += differs ? std::string(list.empty() ? "" : ", ") + name : "";
    }
    return list;
}

// Complaints of one run, a line each; empty when all is well.
std::string runOnce(const Script& script, const faults::Plan& plan)
{
    const State before = stateNow();
    faults::begin(plan);
    std::optional<host::Meter> meter;
    {
        support::Typist typist;
        typist.lines = parted(script.answers, '|');
        host::Editor editor(typist, false);
        host::runCommands(editor);
        meter = editor.meter;
    }
    std::string complaints;
    const std::string left = differences(before, stateNow());
    if (!left.empty() && !mayLeave(left))
    {
        complaints += "left otherwise: " + left + "\n";
    }
    if (meter)
    {
        complaints += "the progress meter is still shown\n";
    }
    host::documents().close();
    for (const faults::Leak& leak : faults::leaks())
    {
        if (!mayLeak(leak))
        {
            complaints += "a block of " + std::to_string(leak.size) + " bytes, made after call " +
                          std::to_string(leak.call) + ", is lost\n";
        }
    }
    return complaints;
}

// Shared by a worker and its runs.
struct Board
{
    int callCount;
    faults::Call calls[20000];
    char complaints[4000];
};

class Worker
{
public:
    Worker(const fs::path& folder, unsigned number, unsigned workers)
        : m_folder(folder / std::to_string(number)), m_number(number), m_workers(workers)
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
    bool load();
    void sweep(const Script& script, bool pairs);
    void requireAllSeen();
    void attempt(const Script& script, const faults::Plan& plan);
    bool attemptHere(const Script& script, const faults::Plan& plan);
    std::vector<faults::Call> callsOf(const Script& script);
    const char* nameOf(const faults::Plan& plan) const;

    fs::path m_folder;
    unsigned m_number;
    unsigned m_workers;
    long m_plan = 0;
    std::set<std::string> m_seen;       // names of calls
    std::vector<faults::Call> m_calls;  // of the script in hand, without a fault
    Board* m_board;
};

bool Worker::load()
{
    fs::current_path(m_folder);  // without its own path the module takes the current folder
    host::registerHostCommands();
    host::documents().open(host::newDrawing());
    // Neither is what a run sets, so one that is not given back is seen.
    host::DrawingState& state = host::documents().document()->database()->core().state;
    state.modelUcs.toWorld =
        AcGeMatrix3d::rotation(0.5, AcGeVector3d::kZAxis, AcGePoint3d(3, 4, 0));
    state.ucsFollow = 1;
    support::Typist typist;
    host::Editor editor(typist, false);
    if (const auto error = host::linker().load(m_folder / "netrax.arx"))
    {
        std::printf("%s\n", error->c_str());
        return false;
    }
    const AcEdCommand* const command = host::commandStack().lookupCmd(L"ZV_NETRAX", true, true);
    if (command == nullptr)
    {
        std::printf("the module has no command\n");
        return false;
    }
    faults::watch(reinterpret_cast<const void*>(command->functionAddr()));
    return true;
}

// What the host says as it stops a run.
fs::path reportOf(const fs::path& folder)
{
    return folder / "report.txt";
}

std::string report(const fs::path& folder)
{
    std::ifstream file(reportOf(folder));
    std::string line;
    std::getline(file, line);
    return line;
}

// In a process of its own, which ends with 0 when nothing is wrong.
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

// Of the first call that fails.
const char* Worker::nameOf(const faults::Plan& plan) const
{
    const bool known = plan.first >= 0 && std::size_t(plan.first) < m_calls.size();
    return known ? m_calls[std::size_t(plan.first)].name : plan.every != nullptr ? plan.every : "";
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
    if (status == 0 || (stopped && mayStop(report(m_folder), nameOf(plan))))
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

// The workers take the plans in turn.
void Worker::attempt(const Script& script, const faults::Plan& plan)
{
    if (m_plan++ % m_workers != m_number)
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

void Worker::sweep(const Script& script, bool pairs)
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
        m_seen.insert(calls[std::size_t(i)].name);
        names.emplace(calls[std::size_t(i)].name, calls[std::size_t(i)]);
        for (unsigned outcome = 0; outcome < calls[std::size_t(i)].outcomes; ++outcome)
        {
            attempt(script, {.first = i, .outcome = outcome});
        }
        attempt(script, {.first = i, .fromFirst = true});
    }
    for (const auto& [name, call] : names)
    {
        for (unsigned outcome = 0; outcome < call.outcomes - call.onceOnly; ++outcome)
        {
            attempt(script, {.every = call.name, .outcome = outcome});
        }
    }
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

// A call that no script makes is one that the module makes no more, or one that never came here.
void Worker::requireAllSeen()
{
    for (const char* name : faults::listed())
    {
        if (!m_seen.contains(name))
        {
            ++failed;
            std::printf("FAILED no script makes the call %s\n", name);
        }
    }
    std::printf("%zu kinds of calls\n", m_seen.size());
    std::fflush(stdout);
}

int Worker::run()
{
    if (!load())
    {
        return 1;
    }
    for (std::size_t i = 0; i < std::size(scripts); ++i)
    {
        const bool isShort = i < 2;
        sweep(scripts[i], isShort);
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

int main()
{
    host::setProductLocale(host::englishLocale);
    std::string pattern = (fs::temp_directory_path() / "netrax-faults-XXXXXX").string();
    const fs::path folder = mkdtemp(pattern.data());
    const unsigned workers = unsigned(std::max(1L, sysconf(_SC_NPROCESSORS_ONLN)));
    auto* const totals =
        static_cast<Totals*>(mmap(nullptr, sizeof(Totals) * workers, PROT_READ | PROT_WRITE,
                                  MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    std::fflush(stdout);
    for (unsigned number = 0; number < workers; ++number)
    {
        if (fork() == 0)
        {
            Worker worker(folder, number, workers);
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
    all.failed += ended || all.failed > 0 ? 0 : 1;
    std::printf("%ld faults tried\n%ld passed, %ld failed\n", all.tried, all.tried - all.failed,
                all.failed);
    return all.failed == 0 && all.tried > 0 ? 0 : 1;
}
