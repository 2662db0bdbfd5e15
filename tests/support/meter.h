// Records the progress meter of the status bar.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tests
{
// Replaces the meter while it lives, so that no meter is printed. Only one object may exist at a
// time.
class Meter
{
public:
    Meter();
    ~Meter();
    Meter(const Meter&) = delete;
    Meter& operator=(const Meter&) = delete;

    std::wstring label;
    int minimum = -1;
    int maximum = -1;
    int started = 0;
    std::vector<int> positions;
    int restored = 0;
    std::function<void()> look = {};  // called when the meter starts
};
}  // namespace tests
