// Dialogs that hold the user's input.
#pragma once

namespace host
{
// A dialog that steps aside for a pick is not shown until it comes back. The count never falls
// below zero; picks only grow in number.
class ShownDialogs
{
public:
    // How many are shown with the new one.
    int show() { return ++m_count; }
    void hide() { --m_count; }
    void stepAside()
    {
        --m_count;
        ++m_picks;
    }
    void comeBack() { ++m_count; }

    int count() const { return m_count; }
    // Times that a dialog has stepped aside.
    int picks() const { return m_picks; }

private:
    int m_count = 0;
    int m_picks = 0;
};
}  // namespace host
