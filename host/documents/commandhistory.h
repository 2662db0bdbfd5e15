// What U and REDO go through: the commands of one document.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/database/undo.h"
#include "host/documents/ucshistory.h"

namespace host
{
// The commands that can be undone, and those that were undone and can be done again. A new command
// ends the second list: redo needs the drawing exactly as the undo left it.
class CommandHistory
{
public:
    // Both are [borrowed] and outlive the history.
    CommandHistory(AcDbDatabase& database, UcsHistory& ucsHistory)
        : m_database(database), m_ucsHistory(ucsHistory)
    {
    }
    CommandHistory(const CommandHistory&) = delete;
    CommandHistory& operator=(const CommandHistory&) = delete;

    // Notes the state that the command finds.
    void begin(std::wstring command);
    // Takes back what the last command did. Returns its name, or nothing when every command has
    // been undone.
    std::optional<std::wstring> undo();
    // Does again what the last undo took back. Returns the name of the command, or nothing when
    // there is nothing to redo.
    std::optional<std::wstring> redo();
    // The number of commands that can be undone.
    std::size_t size() const { return m_done.size(); }

private:
    struct Done
    {
        std::wstring command;
        UndoMark objects;  // this and the rest: as the command found them
        DrawingState state;
        UcsHistory ucsHistory;
    };
    struct Undone
    {
        Done done;
        UndoneChanges objects;
        DrawingState state;  // this and the next: as the command left them
        UcsHistory ucsHistory;
    };

    void restore(DrawingState state, UcsHistory ucsHistory);

    AcDbDatabase& m_database;
    UcsHistory& m_ucsHistory;
    std::vector<Done> m_done;
    std::vector<Undone> m_undone;
};
}  // namespace host
