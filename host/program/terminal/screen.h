// The text on a terminal: finished lines, the line that waits for an answer, the progress bar.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/editor/frontend.h"

namespace host
{
// Needs a terminal that understands the usual escape sequences. Calls must not overlap. Texts are
// in UTF-8.
class Screen
{
public:
    // Shows the finished lines. Keeps a line without its end, because it may be the prompt of a
    // question, which the line editor draws together with the typed answer.
    void print(std::string_view text);
    // Writes to standard error, on a separate line.
    void report(std::string_view line);
    // Shows the meter in one line at the bottom. No value removes the meter.
    void showMeter(const std::optional<Meter>& meter);

    // Returns the waiting line and forgets it. The caller shows it.
    std::string takePrompt();
    // Sets whether the caller has ended the line of the prompt.
    void promptEnded(bool lineEnded) { m_promptOpen = !lineEnded; }
    // Shows a line that is still waiting, because no question follows it.
    void finish();

private:
    void show(std::string_view text);
    void showBar(const std::string& bar);

    std::string m_waiting;
    std::string m_bar;  // empty when no bar is shown
    bool m_promptOpen = false;
};
}  // namespace host
