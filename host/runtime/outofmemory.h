// What the program does when memory runs out and nobody can be told.
#pragma once

#include <string_view>

namespace host
{
inline constexpr std::string_view notEnoughMemory = "not enough memory";

// Ends the run with status 1 after that line on standard error.
[[noreturn]] void endWithoutMemory();

// While one stands, a request for memory that fails ends the run instead of throwing: nothing may
// be thrown through the system's loader, which would keep its lock for good.
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
