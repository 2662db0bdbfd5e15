// The progress meter of long work.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "host/dxf/progress.h"
#include "host/editor/frontend.h"
#include "host/editor/owntexts.h"

namespace host
{
class Editor;

// Shows a meter for work that takes longer than a second. The end of the object removes the meter.
class LongWork
{
public:
    using Show = std::function<void(const std::optional<Meter>&)>;

    // Passes the meter to `show`, or no value to remove it.
    LongWork(std::wstring label, Show show);
    // Shows the meter of work outside commands. The front end is [borrowed].
    LongWork(OwnText label, FrontEnd& frontEnd);
    // Shows the meter of a command's work. The editor is [borrowed].
    LongWork(OwnText label, Editor& editor);
    ~LongWork();
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    // Returns the function that takes the progress. It may be called while the object lives.
    Progress progress();

private:
    void reach(double part);

    Meter m_meter;
    Show m_show;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    bool m_shown = false;
};
}  // namespace host
