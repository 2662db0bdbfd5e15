#include "host/windows/emulated/unfinishedfile.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>

namespace host
{
namespace
{
enum class State
{
    none,
    beingMade,
    there,
    ending
};

std::atomic<State> theState = State::none;
static_assert(std::atomic<State>::is_always_lock_free, "signal handlers look at it");

char thePath[PATH_MAX];

// Changes the state from one to another. Fails if the program is being ended or the state is a
// third one.
bool change(State from, State to)
{
    return theState.compare_exchange_strong(from, to);
}

// Holds signals back, because a handler that interrupts the creation of a file could not wait for
// its end.
class SignalsHeldBack
{
public:
    SignalsHeldBack()
    {
        sigset_t signals;
        sigemptyset(&signals);
        for (const int number : endingSignals())
        {
            sigaddset(&signals, number);
        }
        pthread_sigmask(SIG_BLOCK, &signals, &m_before);
    }
    ~SignalsHeldBack() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    SignalsHeldBack(const SignalsHeldBack&) = delete;
    SignalsHeldBack& operator=(const SignalsHeldBack&) = delete;

private:
    sigset_t m_before;
};
}  // namespace

std::span<const int> endingSignals()
{
    static const int numbers[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};
    return numbers;
}

int createUnfinishedFile(const std::string& path, mode_t mode)
{
    if (path.size() >= sizeof thePath)
    {
        errno = ENAMETOOLONG;
        return -1;
    }
    const SignalsHeldBack heldBack;
    if (!change(State::none, State::beingMade))
    {
        errno = EBUSY;
        return -1;
    }
    thePath[path.copy(thePath, path.size())] = '\0';
    const int file = ::open(thePath, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    theState = file >= 0 ? State::there : State::none;
    return file;
}

void settleUnfinishedFile()
{
    change(State::there, State::none);
}

// Calls only functions that a signal handler may call. Waits for a file that is being created,
// because the name may turn out to belong to another run.
void deleteUnfinishedFile()
{
    const int aMoment = 1;  // millisecond
    while (!change(State::none, State::ending))
    {
        if (change(State::there, State::ending))
        {
            ::unlink(thePath);
            return;
        }
        if (theState == State::ending)
        {
            return;
        }
        ::poll(nullptr, 0, aMoment);
    }
}
}  // namespace host
