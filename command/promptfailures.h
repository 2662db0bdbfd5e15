// Counts prompts that the host fails to ask.
#pragma once

// Counts consecutive results that no person caused: the result is not a value, a text, Enter or
// Esc. Without a limit the command would never stop asking a host that always fails, and it would
// build the grid again each time.
class PromptFailures
{
public:
    PromptFailures() : m_inARow(0) {}

    // Records the result of a prompt, an RT code of the host. Returns true from the sixteenth
    // consecutive failure on; the caller then acts as after a cancel.
    bool areTooMany(int result);

private:
    int m_inARow;
};
