// The end of a run whose memory ran out where no failure can be returned.
#pragma once

#include <string_view>

namespace host
{
inline constexpr std::string_view notEnoughMemory = "not enough memory";

// Writes that line to standard error and ends the run with status 1.
[[noreturn]] void endWithoutMemory();

// As long as an object of this class lives, a request for memory that fails ends the run instead of
// throwing. Nothing may be thrown through the system's loader: it would keep its lock for good.
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
