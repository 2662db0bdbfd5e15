// Prompts that the host fails to ask.
#pragma once

// Counts results in a row with which no person has to do: no value, no text, neither Enter nor Esc.
// A host that fails for good would be asked for ever, and the grid built anew each time.
class PromptFailures
{
public:
    PromptFailures() : m_inARow(0) {}

    // Notes the result of a prompt. True: the sixteenth failure in a row, to be taken for a cancel.
    bool areTooMany(int result);

private:
    int m_inARow;
};
