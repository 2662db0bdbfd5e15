#include "host/program/session.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <utility>

#include "host/program/job.h"

namespace host
{
namespace
{
void printOut(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
    // Whoever sits at the other end of a pipe has to see a prompt, which has no line end.
    if (!text.ends_with('\n'))
    {
        std::fflush(stdout);
    }
}

void printError(std::string_view line)
{
    std::fprintf(stderr, "arxhost: %.*s\n", int(line.size()), line.data());
}

int runGuarded(const Options& options, FrontEnd& frontEnd)
{
    try
    {
        return runJob(options, frontEnd);
    }
    catch (const std::exception& failure)
    {
        frontEnd.report(failure.what());
        return EXIT_FAILURE;
    }
}
}  // namespace

LineOutput standardOutput()
{
    return {.print = printOut, .report = printError};
}

int runSession(const Options& options, AnswerReader& reader, LineOutput output)
{
    LineFrontEnd frontEnd(reader, std::move(output));
    int status = EXIT_FAILURE;
    frontEnd.serve([&] { status = runGuarded(options, frontEnd); });
    return status;
}
}  // namespace host
