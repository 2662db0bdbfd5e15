#include "host/program/session.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <ios>
#include <new>
#include <string>
#include <utility>

#include "host/program/job.h"
#include "host/program/meterbar.h"
#include "host/program/platform.h"
#include "host/basics/outofmemory.h"

namespace host
{
namespace
{
bool lineIsOpen = false;

void printOut(std::string_view text)
{
    lineIsOpen = text.empty() ? lineIsOpen : !text.ends_with('\n');
    write(stdout, text);
    // A prompt has no line end, but the reader at the other end of a pipe must see it.
    if (!text.ends_with('\n'))
    {
        std::fflush(stdout);
    }
}

// Shows the meter on the last line of the terminal on standard error, so that standard output stays
// free of it.
class ErrorMeter
{
public:
    explicit ErrorMeter(int columns) : m_columns(columns) {}

    void show(const std::optional<Meter>& meter)
    {
        const std::string bar = meter ? meterBar(*meter, m_columns) : "";
        if (bar == m_bar)
        {
            return;
        }
        std::fflush(stdout);
        const bool beside = std::exchange(lineIsOpen, false);
        const std::string blanks(std::size_t(m_columns - 1), ' ');
        write(stderr, (beside ? "\n\r" : "\r") + blanks + "\r" + bar);
        std::fflush(stderr);
        m_bar = bar;
    }

private:
    int m_columns;
    std::string m_bar;
};

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
    // Joining the three parts would need memory, which may have run out.
    write(stderr, "arxhost: ");
    write(stderr, line);
    write(stderr, "\n");
}

LineOutput standardOutput()
{
    LineOutput output{.print = printOut, .report = printError};
    if (const int columns = errorColumns(); columns > 0)
    {
        output.showMeter = [meter = ErrorMeter(columns)](const std::optional<Meter>& shown) mutable
        { meter.show(shown); };
    }
    return output;
}

int runSession(const Options& options, AnswerReader& reader, LineOutput output)
{
    if (options.quiet)
    {
        output.showMeter = nullptr;
    }
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
        // The memory may have run out because of a failure that has been reported already.
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
