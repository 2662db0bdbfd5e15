// Ends a run that is out of memory at a place where it cannot return a failure.
#pragma once

#include <string_view>

namespace host
{
inline constexpr std::string_view notEnoughMemory = "not enough memory";

// Writes that line to standard error and ends the run with status 1.
[[noreturn]] void endWithoutMemory();

// While an object of this class exists, a failed request for memory ends the run instead of
// throwing. An exception must not pass through the system's loader, which would never release its
// lock.
class NoThrowing
{
public:
    NoThrowing();
    ~NoThrowing();
    NoThrowing(const NoThrowing&) = delete;
    NoThrowing& operator=(const NoThrowing&) = delete;

private:
    void (*m_former)();
};
}  // namespace host
