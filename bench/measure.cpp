// Runs a command and writes what it took: `measure RESULT COMMAND...`; its exit status is the
// command's. Seconds of wall clock, seconds of processor, peak kilobytes, page faults that read no
// disk.
//
// Small on purpose: the peak of a process counts from before its program was loaded.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace
{
double seconds(const timeval& time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}
}  // namespace

int main(int count, char** arguments)
{
    if (count < 3)
    {
        return 2;
    }
    const auto started = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0)
    {
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        execv(arguments[2], arguments + 2);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - started;
    std::FILE* const result = std::fopen(arguments[1], "w");
    std::fprintf(result, "%.6f %.6f %ld %ld\n", wall.count(),
                 seconds(usage.ru_utime) + seconds(usage.ru_stime), usage.ru_maxrss,
                 usage.ru_minflt);
    std::fclose(result);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
