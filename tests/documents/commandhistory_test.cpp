#include "host/documents/commandhistory.h"

#include <gtest/gtest.h>

#include "host/database/drawing.h"

#include "host/documents/documentmanager.h"
#include "tests/support/session.h"

namespace
{
using Name = std::optional<std::wstring>;

TEST(CommandHistory, undoesTheLastCommandFirstAndRedoesInTheOtherOrder)
{
    support::Session session;
    host::CommandHistory& history = session.document().commands();
    EXPECT_EQ(history.undo(), Name());
    history.begin(L"FIRST");
    history.begin(L"SECOND");
    EXPECT_EQ(history.undo(), Name(L"SECOND"));
    EXPECT_EQ(history.undo(), Name(L"FIRST"));
    EXPECT_EQ(history.undo(), Name());
    EXPECT_EQ(history.redo(), Name(L"FIRST"));
    EXPECT_EQ(history.redo(), Name(L"SECOND"));
    EXPECT_EQ(history.redo(), Name());
    EXPECT_EQ(history.size(), 2u);
}

TEST(CommandHistory, aNewCommandEndsWhatCouldBeRedone)
{
    support::Session session;
    host::CommandHistory& history = session.document().commands();
    history.begin(L"FIRST");
    history.undo();
    history.begin(L"SECOND");
    EXPECT_EQ(history.redo(), Name());
    EXPECT_EQ(history.undo(), Name(L"SECOND"));
}

TEST(CommandHistory, undoAndRedoBringBackTheStateOfTheDrawingAndTheFormerCoordinateSystems)
{
    support::Session session;
    host::Document& document = session.document();
    host::DrawingState& state = host::stateOf(*document.database());
    const bool before = state.paperSpace;
    document.commands().begin(L"CHANGE");
    document.ucsHistory().push(state);
    state.paperSpace = !before;

    host::Ucs former;
    document.commands().undo();
    EXPECT_EQ(state.paperSpace, before);
    EXPECT_FALSE(document.ucsHistory().pop(state, former));
    document.commands().redo();
    EXPECT_EQ(state.paperSpace, !before);
    state.paperSpace = before;
    EXPECT_TRUE(document.ucsHistory().pop(state, former));
}
}  // namespace
