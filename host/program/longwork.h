// The progress meter of work that takes long.
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

// Shows a meter for work that takes longer than a second. The meter goes with the object.
class LongWork
{
public:
    using Show = std::function<void(const std::optional<Meter>&)>;

    LongWork(std::wstring label, Show show);
    LongWork(OwnText label, FrontEnd& frontEnd);
    LongWork(OwnText label, Editor& editor);  // of a command
    ~LongWork();
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    Progress progress();  // good while the object lives

private:
    void reach(double part);

    Meter m_meter;
    Show m_show;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    bool m_shown = false;
};
}  // namespace host
