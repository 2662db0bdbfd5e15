#include "host/program/terminal/signals.h"

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <initializer_list>

#include "host/windows/emulated/unfinishedfile.h"

namespace host
{
namespace
{
termios modesBefore;
bool modesAreKnown = false;
int nothing = -1;  // the descriptor of an empty file
volatile std::sig_atomic_t signalOfInput = 0;

// Restores the modes through standard output, because the input may be another file by now.
void leaveTheTerminalAsItWas()
{
    if (modesAreKnown)
    {
        tcsetattr(STDOUT_FILENO, TCSANOW, &modesBefore);
    }
}

// Tidies up and ends the program as the signal would end it without a handler.
void endBy(int number)
{
    leaveTheTerminalAsItWas();
    deleteUnfinishedFile();
    std::signal(number, SIG_DFL);
    std::raise(number);
}

void handle(int number, void (*handler)(int))
{
    struct sigaction before = {};
    sigaction(number, nullptr, &before);
    if (before.sa_handler != SIG_IGN)
    {
        struct sigaction action = {};
        action.sa_handler = handler;
        sigaction(number, &action, nullptr);
    }
}

// Replaces the input by an empty file. The signal also wakes a read that waits, which then finds
// the end.
void endInput(int number)
{
    const int error = errno;
    signalOfInput = number;
    dup2(nothing, STDIN_FILENO);
    errno = error;
}
}  // namespace

void endTidilyAtSignals()
{
    for (const int number : endingSignals())
    {
        handle(number, endBy);
    }
}

void endInputAtSignals()
{
    modesAreKnown = tcgetattr(STDOUT_FILENO, &modesBefore) == 0;
    nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
    {
        handle(number, endInput);
    }
}

void endBySignalOfInput()
{
    if (signalOfInput != 0)
    {
        std::fflush(nullptr);
        endBy(signalOfInput);
    }
}
}  // namespace host
