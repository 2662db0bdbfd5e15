// Keeps the commands of one document that U and REDO go through.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/database/undo.h"
#include "host/documents/ucshistory.h"

namespace host
{
// Keeps the commands that can be undone, and the undone commands that can be redone. A new command
// clears the second list, because redo needs the drawing exactly as the undo left it.
class CommandHistory
{
public:
    // Both arguments are [borrowed] and outlive the history.
    CommandHistory(AcDbDatabase& database, UcsHistory& ucsHistory)
        : m_database(database), m_ucsHistory(ucsHistory)
    {
    }
    CommandHistory(const CommandHistory&) = delete;
    CommandHistory& operator=(const CommandHistory&) = delete;

    // Records the state of the drawing before the command.
    void begin(std::wstring command);
    // Undoes the last command. Returns its name, or no value when every command has been undone.
    std::optional<std::wstring> undo();
    // Redoes the command that was undone last. Returns its name, or no value when there is no
    // command to redo.
    std::optional<std::wstring> redo();
    // Returns the number of commands that can be undone.
    std::size_t size() const { return m_done.size(); }

private:
    struct Done
    {
        std::wstring command;
        UndoMark objects;  // this and the following members: the state before the command
        DrawingState state;
        UcsHistory ucsHistory;
    };
    struct Undone
    {
        Done done;
        UndoneChanges objects;
        DrawingState state;  // this and the next member: the state after the command
        UcsHistory ucsHistory;
    };

    void restore(DrawingState state, UcsHistory ucsHistory);

    AcDbDatabase& m_database;
    UcsHistory& m_ucsHistory;
    std::vector<Done> m_done;
    std::vector<Undone> m_undone;
};
}  // namespace host
