// What a terminal shows: finished lines, the line that waits for an answer, the progress bar.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/editor/frontend.h"

namespace host
{
// The terminal has to understand the usual escape sequences. Not for several threads at once.
class Screen
{
public:
    // A line without its end waits: it may be the prompt of a question, and whoever edits the
    // answer draws that together with what is typed.
    void print(std::string_view text);
    // On standard error, on a line of its own.
    void report(std::string_view line);
    // One line at the bottom; it is erased when the meter has gone.
    void showMeter(const std::optional<Meter>& meter);

    // The line that waits; the caller shows it.
    std::string takePrompt();
    // Whether the caller has ended the line of the prompt.
    void promptEnded(bool lineEnded) { m_promptOpen = !lineEnded; }
    // Shows a line that waits in vain.
    void finish();

private:
    void show(std::string_view text);
    void showBar(const std::string& bar);

    std::string m_waiting;
    std::string m_bar;  // empty: none is shown
    bool m_promptOpen = false;
};
}  // namespace host
