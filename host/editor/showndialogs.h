// Counts the dialogs that hold the user's input.
#pragma once

namespace host
{
// Does not count a dialog that has stepped aside for a pick until it comes back. Calls come in
// pairs, so the count never falls below zero.
class ShownDialogs
{
public:
    // Adds a dialog and returns the number of dialogs that are shown now.
    int show() { return ++m_count; }
    // Removes a dialog that has ended.
    void hide() { --m_count; }
    // Removes a dialog for the length of a pick.
    void stepAside()
    {
        --m_count;
        ++m_picks;
    }
    // Adds the dialog again after the pick.
    void comeBack() { ++m_count; }

    // Returns the number of dialogs that are shown now.
    int count() const { return m_count; }
    // Returns how many times a dialog has stepped aside so far.
    int picks() const { return m_picks; }

private:
    int m_count = 0;
    int m_picks = 0;
};
}  // namespace host
