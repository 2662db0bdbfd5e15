#include "host/documents/commandhistory.h"

#include <utility>

#include "host/database/drawing.h"

namespace host
{
namespace
{
template <typename Step>
Step takeLast(std::vector<Step>& steps)
{
    Step last = std::move(steps.back());
    steps.pop_back();
    return last;
}
}  // namespace

void CommandHistory::begin(std::wstring command)
{
    m_undone.clear();
    m_done.push_back({std::move(command), undoMark(m_database), stateOf(m_database), m_ucsHistory});
}

std::optional<std::wstring> CommandHistory::undo()
{
    if (m_done.empty())
    {
        return std::nullopt;
    }
    Done last = takeLast(m_done);
    UndoneChanges objects = undoTo(m_database, last.objects);
    m_undone.push_back({last, std::move(objects), stateOf(m_database), m_ucsHistory});
    restore(std::move(last.state), std::move(last.ucsHistory));
    return std::move(last.command);
}

std::optional<std::wstring> CommandHistory::redo()
{
    if (m_undone.empty())
    {
        return std::nullopt;
    }
    Undone last = takeLast(m_undone);
    host::redo(m_database, last.objects);
    restore(std::move(last.state), std::move(last.ucsHistory));
    m_done.push_back(std::move(last.done));
    return m_done.back().command;
}

void CommandHistory::restore(DrawingState state, UcsHistory ucsHistory)
{
    stateOf(m_database) = std::move(state);
    m_ucsHistory = std::move(ucsHistory);
}
}  // namespace host
