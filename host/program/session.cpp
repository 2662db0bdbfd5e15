#include "host/program/session.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <ios>
#include <new>
#include <utility>

#include "host/program/job.h"
#include "host/runtime/outofmemory.h"

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

std::atomic<bool> failureTold = false;

int runGuarded(const Options& options, FrontEnd& frontEnd)
{
    try
    {
        return runJob(options, frontEnd);
    }
    catch (const std::bad_alloc&)
    {
        frontEnd.report(notEnoughMemory);
        return EXIT_FAILURE;
    }
    catch (const std::exception& failure)
    {
        frontEnd.report(failure.what());
        return EXIT_FAILURE;
    }
}
}  // namespace

void printError(std::string_view line)
{
    failureTold = true;
    std::fprintf(stderr, "arxhost: %.*s\n", int(line.size()), line.data());
}

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

void endAtOnce()
{
    std::fflush(stdout);
    try
    {
        if (const std::exception_ptr thrown = std::current_exception())
        {
            std::rethrow_exception(thrown);
        }
        std::abort();
    }
    catch (const std::bad_alloc&)
    {
        // After a failure that was told this is but its last trace.
        if (!failureTold)
        {
            printError(notEnoughMemory);
        }
    }
    catch (const std::ios_base::failure&)
    {
        printError("the input cannot be read");
    }
    catch (const std::exception& failure)
    {
        printError(failure.what());
    }
    std::_Exit(EXIT_FAILURE);
}
}  // namespace host
