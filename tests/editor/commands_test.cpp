#include "host/editor/commands.h"

#include <gtest/gtest.h>

#include "acedads.h"
#include "acutads.h"
#include "dbapserv.h"
#include "dbents.h"
#include "dbobjptr.h"
#include "geassign.h"
#include "host/database/drawing.h"
#include "rxmfcapi.h"
#include "tests/support/session.h"

namespace
{
using support::Session;

void sayHere()
{
    acutPrintf(L"here");
}

void askAPoint()
{
    AcGePoint3d point;
    acedInitGet(128, L"Stop");
    acutPrintf(L"(%d)", acedGetPoint(nullptr, L"\nWhere: ", asDblArray(point)));
}

bool has(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

TEST(CommandPrompt, nameIsTakenWithoutCaseAndWithItsMarks)
{
    Session session;
    session.define(L"zv_grid", sayHere);
    for (const char* name :
         {"zv_grid", "ZV_GRID", "_zv_grid", ".zv_grid", "'zv_grid", "'_.zv_grid", "  zv_grid "})
    {
        EXPECT_TRUE(has(session.type({name}), "\nhere\nCommand: ")) << name;
    }
}

TEST(CommandPrompt, unknownNameIsTold)
{
    Session session;
    EXPECT_EQ(session.type({"foo", "_.Bar"}),
              "Command: foo\n"
              "Unknown command \"FOO\".  Press F1 for help.\n"
              "Command: _.Bar\n"
              "Unknown command \"BAR\".  Press F1 for help.\n"
              "Command: \n");
    EXPECT_FALSE(session.endedInsideCommand);
}

TEST(CommandPrompt, enterStartsTheLastCommandAgain)
{
    Session session;
    session.define(L"GRID", sayHere);
    EXPECT_EQ(session.type({"", "grid", "nonsense", ""}),
              "Command: \nCommand: grid\nhere\nCommand: nonsense\n"
              "Unknown command \"NONSENSE\".  Press F1 for help.\nCommand: \nhere\nCommand: \n");
}

TEST(CommandPrompt, escDoesNothing)
{
    Session session;
    EXPECT_EQ(session.type({"^C", "QUIT", "never"}), "Command: ^C\nCommand: QUIT\n");
}

TEST(CommandPrompt, commandIsRefusedWhereItsFlagsForbidIt)
{
    Session session;
    session.define(L"grid", sayHere, ACRX_CMD_NOPAPERSPACE | ACRX_CMD_NOBEDIT);
    session.define(L"sheet", sayHere, ACRX_CMD_NOTILEMODE);
    EXPECT_TRUE(has(session.type({"sheet"}), "** Command not allowed in Model Tab **"));
    session.document().setBlockEditor(true);
    EXPECT_TRUE(has(session.type({"grid"}), "** GRID command not allowed in block editor. **\n"));
    session.document().setBlockEditor(false);
    host::stateOf(session.drawing()).paperSpace = true;
    EXPECT_TRUE(has(session.type({"grid"}), "** Command not allowed in Paper Space **\n"));
    EXPECT_TRUE(has(session.type({"sheet"}), "here"));
    EXPECT_EQ(session.document().commands().size(), 1u);  // what was refused leaves no step
}

TEST(TransparentCommands, outerPromptComesAgainWithItsOptions)
{
    Session session;
    session.define(L"outer", askAPoint);
    session.define(L"inner", askAPoint, ACRX_CMD_TRANSPARENT);
    EXPECT_EQ(session.type({"outer", "'_inner", "what", "stop"}),
              "Command: outer\n"
              "\nWhere: '_inner\n"
              "\nWhere: what\n"
              "(-5005)\n"
              "Resuming OUTER command.\n"
              "\nWhere: stop\n"
              "(-5005)\n"
              "Command: \n");
}

TEST(TransparentCommands, othersAreRefusedAndThePromptComesAgain)
{
    Session session;
    session.define(L"outer", askAPoint, ACRX_CMD_TRANSPARENT);
    session.define(L"modal", sayHere);
    const std::string said =
        session.type({"outer", "'modal", "'outer", "'unknown", "'SETVAR", "UCSICON", "", ""});
    EXPECT_TRUE(has(said,
                    "Where: 'modal\n"
                    "** That command may not be invoked transparently **\n"));
    EXPECT_TRUE(has(said,
                    "Where: 'outer\n"
                    "** That command may not be invoked transparently **\n"));
    EXPECT_TRUE(has(said, "Unknown command \"UNKNOWN\""));
    EXPECT_TRUE(has(said, "UCSICON = 3\nResuming OUTER command.\n\nWhere: \n(5000)"));
}

TEST(TransparentCommands, runAtTheHostsOwnPrompts)
{
    Session session;
    session.define(L"inner", sayHere, ACRX_CMD_TRANSPARENT);
    EXPECT_TRUE(has(session.type({"UCS", "'inner", "Z", "'inner", "30"}), "Resuming UCS command."));
    EXPECT_EQ(session.questions.size(), 6u);
}

TEST(TransparentCommands, flagsOfTheSpaceHoldForThemToo)
{
    Session session;
    session.define(L"outer", askAPoint);
    session.define(L"inner", sayHere, ACRX_CMD_TRANSPARENT | ACRX_CMD_NOPAPERSPACE);
    host::stateOf(session.drawing()).paperSpace = true;
    const std::string said = session.type({"outer", "'inner", ""});
    EXPECT_TRUE(has(said, "** Command not allowed in Paper Space **"));
    EXPECT_FALSE(has(said, "Resuming"));
}

TEST(TransparentCommands, leaveNoOptionsBehind)
{
    Session session;
    session.define(
        L"careless", [] { acedInitGet(1, L""); }, ACRX_CMD_TRANSPARENT);
    session.define(L"outer",
                   []
                   {
                       AcGePoint3d point;
                       acedGetPoint(nullptr, L"", asDblArray(point));
                       EXPECT_EQ(acedGetPoint(nullptr, L"", asDblArray(point)), RTNONE);
                   });
    session.type({"outer", "'careless", "1,1", ""});
    EXPECT_FALSE(session.endedInsideCommand);
}

TEST(EndOfInput, countsAsEscUntilTheCommandHasEnded)
{
    Session session;
    session.define(L"grid",
                   []
                   {
                       askAPoint();
                       askAPoint();
                   });
    EXPECT_EQ(session.type({"grid"}), "Command: grid\n\nWhere: ^C\n(-5002)\nWhere: ^C\n(-5002)");
    EXPECT_TRUE(session.endedInsideCommand);
    EXPECT_EQ(session.reports, std::vector<std::string>{"the input ended in the middle of grid"});
}

TEST(EndOfInput, atTheCommandPromptIsTheNormalEnd)
{
    Session session;
    EXPECT_EQ(session.type({}), "Command: \n");
    EXPECT_FALSE(session.endedInsideCommand);
    EXPECT_TRUE(session.reports.empty());
}

TEST(EndOfInputDeathTest, commandThatNeverEndsIsStopped)
{
    Session session;
    session.define(L"deaf",
                   []
                   {
                       for (;;)
                       {
                           askAPoint();
                       }
                   });
    EXPECT_EXIT(session.type({"deaf"}), ::testing::ExitedWithCode(1), "deaf: asks again and again");
}

TEST(CommandRulesDeathTest, meterThatStaysStopsTheRun)
{
    Session session;
    session.define(L"grid", [] { acedSetStatusBarProgressMeter(L"Progress", 0, 5); });
    EXPECT_EXIT(session.type({"grid"}), ::testing::ExitedWithCode(1),
                "acedSetStatusBarProgressMeter: GRID did not restore");
}

TEST(CommandRulesDeathTest, objectThatStaysOpenStopsTheRun)
{
    Session session;
    session.define(L"grid",
                   []
                   {
                       AcDbLayerTable* layers = nullptr;
                       acdbHostApplicationServices()->workingDatabase()->getLayerTable(
                           layers, AcDb::kForRead);
                   });
    EXPECT_EXIT(session.type({"grid"}), ::testing::ExitedWithCode(1), "GRID");
}

void drawALine()
{
    AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
    AcDbBlockTable* blocks = nullptr;
    ASSERT_EQ(database->getBlockTable(blocks, AcDb::kForRead), Acad::eOk);
    AcDbBlockTableRecord* space = nullptr;
    ASSERT_EQ(blocks->getAt(ACDB_MODEL_SPACE, space, AcDb::kForWrite), Acad::eOk);
    blocks->close();
    auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0));
    EXPECT_EQ(space->appendAcDbEntity(line), Acad::eOk);
    line->close();
    space->close();
}

std::size_t linesIn(const AcDbDatabase& database)
{
    std::size_t lines = 0;
    for (const AcDbStub& stub : host::coreOf(database).objects())
    {
        lines += (stub.flags & AcDbStub::isLine) != 0 && !stub.erased();
    }
    return lines;
}

TEST(Undo, takesCommandsBackOneByOne)
{
    Session session;
    session.define(L"grid", drawALine);
    session.type({"grid", "grid"});
    EXPECT_EQ(linesIn(session.drawing()), 2u);
    EXPECT_EQ(session.type({"U"}), "Command: U\nGRID\nCommand: \n");
    EXPECT_EQ(linesIn(session.drawing()), 1u);
    EXPECT_EQ(session.type({"u", "u"}),
              "Command: u\nGRID\nCommand: u\nEverything has been undone.\nCommand: \n");
    EXPECT_EQ(linesIn(session.drawing()), 0u);
}

TEST(Redo, doesWhatWasTakenBackUntilSomethingElseIsDone)
{
    Session session;
    session.define(L"grid", drawALine);
    session.type({"grid", "grid", "UCS", "Z", "30"});
    session.type({"U", "U", "U"});
    EXPECT_EQ(session.type({"REDO"}), "Command: REDO\nGRID\nCommand: \n");
    EXPECT_EQ(linesIn(session.drawing()), 1u);
    EXPECT_EQ(session.type({"redo", "redo", "redo"}),
              "Command: redo\nGRID\nCommand: redo\nUCS\nCommand: redo\nNothing to redo.\n"
              "Command: \n");
    EXPECT_EQ(linesIn(session.drawing()), 2u);
    EXPECT_NEAR(host::stateOf(session.drawing()).ucs().toWorld->entry[1][0], 0.5, 1e-15);
    session.type({"U", "U", "grid"});
    EXPECT_EQ(session.type({"REDO"}), "Command: REDO\nNothing to redo.\nCommand: \n");
    EXPECT_EQ(linesIn(session.drawing()), 2u);
}

TEST(Undo, bringsBackTheUcsWithItsHistoryAndTheVariables)
{
    Session session;
    session.type({"UCS", "Z", "30"});
    session.type({"UCS", "P"});
    session.type({"SETVAR", "UCSICON", "0"});
    session.type({"U", "U"});
    EXPECT_EQ(host::stateOf(session.drawing()).ucsIcon, 3);
    EXPECT_NEAR(host::stateOf(session.drawing()).ucs().toWorld->entry[1][0], 0.5, 1e-15);
    // The list is as long as it was before the second command took from it.
    EXPECT_FALSE(has(session.type({"UCS", "P"}), "No previous"));
    EXPECT_TRUE(has(session.type({"UCS", "P"}), "No previous coordinate system saved."));
}

TEST(Undo, commandThatChangesNothingIsNoStep)
{
    Session session;
    session.define(L"look", sayHere, ACRX_CMD_NO_UNDO_MARKER);
    session.type({"look", "ARX", "C"});
    EXPECT_EQ(session.type({"U"}), "Command: U\nEverything has been undone.\nCommand: \n");
}
}  // namespace
