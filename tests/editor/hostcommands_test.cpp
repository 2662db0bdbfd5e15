#include "host/editor/hostcommands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "accmd.h"
#include "dbents.h"
#include "host/database/drawing.h"
#include "host/editor/ucs.h"
#include "host/editor/view.h"
#include "tests/support/session.h"

namespace
{
using support::Session;

bool has(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

const AcGeMatrix3d& ucs(Session& session)
{
    return host::stateOf(session.drawing()).ucs().toWorld;
}

host::View& view(Session& session)
{
    return host::stateOf(session.drawing()).view;
}

void expectFrame(const AcGeMatrix3d& frame, const AcGePoint3d& origin, const AcGeVector3d& x,
                 const AcGeVector3d& y)
{
    EXPECT_EQ(host::originOf(frame), origin);
    EXPECT_EQ(host::axisOf(frame, 0), x);
    EXPECT_EQ(host::axisOf(frame, 1), y);
    EXPECT_EQ(host::axisOf(frame, 2), x.crossProduct(y));
}

TEST(UcsCommand, asksAsACadProgramDoes)
{
    Session session;
    EXPECT_EQ(session.type({"UCS", "Z", "", "UCS", "w"}),
              "Command: UCS\n"
              "Current ucs name:  *WORLD*\n"
              "Specify origin of UCS or [Origin/Previous/World/X/Y/Z] <World>: Z\n"
              "Specify rotation angle about Z axis <90>: \n"
              "Command: UCS\n"
              "Current ucs name:  *NO NAME*\n"
              "Specify origin of UCS or [Origin/Previous/World/X/Y/Z] <World>: w\n"
              "Command: \n");
    expectFrame(ucs(session), {0, 0, 0}, {1, 0, 0}, {0, 1, 0});
}

TEST(UcsCommand, turnsAboutItsOwnAxes)
{
    struct Row
    {
        std::vector<std::string> lines;
        AcGeVector3d x, y;
    };
    const double h = std::sqrt(3) / 2;
    const Row rows[] = {
        {{"UCS", "Z", "30"}, {h, 0.5, 0}, {-0.5, h, 0}},
        {{"UCS", "X", "90"}, {1, 0, 0}, {0, 0, 1}},
        {{"UCS", "Y", "90"}, {0, 0, -1}, {0, 1, 0}},
        {{"UCS", "X", "90", "UCS", "Z", "90"}, {0, 0, 1}, {-1, 0, 0}},
        {{"UCS", "z", "wrong", "-90"}, {0, -1, 0}, {1, 0, 0}},
        {{"UCS", "Z", "^C"}, {1, 0, 0}, {0, 1, 0}},
        {{"UCS", "^C"}, {1, 0, 0}, {0, 1, 0}},
        {{"UCS", "Z", "30", "UCS", "P"}, {1, 0, 0}, {0, 1, 0}},
        {{"UCS", "Z", "30", "UCS", ""}, {1, 0, 0}, {0, 1, 0}},
    };
    for (const Row& row : rows)
    {
        Session session;
        session.type(row.lines);
        expectFrame(ucs(session), {0, 0, 0}, row.x, row.y);
        EXPECT_FALSE(session.endedInsideCommand);
    }
}

TEST(UcsCommand, fourQuarterTurnsAreNoTurnToTheLastBit)
{
    Session session;
    for (int i = 0; i < 4; ++i)
    {
        session.type({"UCS", "X", "90", "UCS", "Z", "-90"});
    }
    for (int i = 0; i < 4; ++i)
    {
        session.type({"UCS", "Z", "90", "UCS", "X", "-90"});
    }
    const AcGeMatrix3d world;
    EXPECT_TRUE(std::equal(&world.entry[0][0], &world.entry[0][0] + 16, &ucs(session).entry[0][0]));
}

TEST(UcsCommand, originMovesWithinTheUcs)
{
    struct Row
    {
        std::vector<std::string> lines;
    };
    const Row rows[] = {
        {{"UCS", "Z", "90", "UCS", "10,20", ""}},
        {{"UCS", "Z", "90", "UCS", "10,20", "PLAN", ""}},  // a command, not the second point
        {{"UCS", "Z", "90", "UCS", "O", "10,20"}},
        {{"UCS", "Z", "90", "UCS", "*-20,10", ""}},
        {{"UCS", "Z", "90", "UCS", "10,20", "^C"}},
    };
    for (const Row& row : rows)
    {
        Session session;
        session.type(row.lines);
        expectFrame(ucs(session), {-20, 10, 0}, {0, 1, 0}, {-1, 0, 0});
        EXPECT_FALSE(session.endedInsideCommand);
    }
}

TEST(UcsCommand, lineThatIsNoPointIsTheNextCommand)
{
    Session session;
    EXPECT_TRUE(has(session.type({"UCS", "10,20", "SETVAR", "UCSORG"}),
                    "Specify point on X-axis or <Accept>: \n"
                    "Command: SETVAR\n"
                    "Enter variable name: UCSORG\n"
                    "UCSORG = 10,20,0\n"));
}

TEST(UcsCommand, furtherPointsTurnTheAxes)
{
    Session session;
    session.type({"UCS", "10,0", "0,5", ""});
    expectFrame(ucs(session), {10, 0, 0}, {0, 1, 0}, {-1, 0, 0});
    session.type({"UCS", "W"});
    session.type({"UCS", "0,0,0", "0,0,5", "0,1,0"});
    expectFrame(ucs(session), {0, 0, 0}, {0, 0, 1}, {0, 1, 0});
    EXPECT_TRUE(has(session.type({"UCS", "0,0,0", "1,0,0", "2,0,0"}), "Points are collinear."));
}

TEST(UcsCommand, previousOfNothingIsTold)
{
    Session session;
    EXPECT_TRUE(has(session.type({"UCS", "P"}), "No previous coordinate system saved.\nCommand: "));
}

TEST(ViewCommands, vpointLooksFromAWorldDirectionWithoutTwist)
{
    Session session;
    view(session).twist = 1;
    session.type({"UCS", "Z", "30"});
    EXPECT_EQ(session.type({"VPOINT", "x", "0,0", "1,-1,1"}),
              "Command: VPOINT\n"
              "Current view direction:  VIEWDIR=0,0,1\n"
              "Specify a view point <keep>: x\n"
              "Invalid point.\n"
              "Specify a view point <keep>: 0,0\n"
              "Invalid point.\n"
              "Specify a view point <keep>: 1,-1,1\n"
              "Command: \n");
    EXPECT_EQ(view(session).direction, AcGeVector3d(1, -1, 1));
    EXPECT_EQ(view(session).twist, 0);
}

TEST(ViewCommands, dviewTwistsInDegrees)
{
    Session session;
    EXPECT_EQ(session.type({"DVIEW", "", "TW", "30", ""}),
              "Command: DVIEW\n"
              "Select objects or <use DVIEWBLOCK>: \n"
              "Enter option [TWist]: TW\n"
              "Specify view twist angle <0>: 30\n"
              "Enter option [TWist]: \n"
              "Command: \n");
    EXPECT_NEAR(view(session).twist, std::numbers::pi / 6, 1e-15);
    // The screen's X axis lies at minus the twist in the plan.
    const AcGeMatrix3d frame = host::viewFrame(view(session));
    EXPECT_NEAR(host::axisOf(frame, 0).y, -0.5, 1e-15);
}

TEST(ViewCommands, twistIsKeptWithinOneTurn)
{
    using std::numbers::pi;
    struct Row
    {
        std::vector<std::string> lines;
        double twist;
    };
    const Row rows[] = {
        {{"DVIEW", "", "TW", "-30", ""}, 11 * pi / 6},  {{"DVIEW", "", "TW", "390", ""}, pi / 6},
        {{"DVIEW", "", "TW", "-750", ""}, 11 * pi / 6}, {{"DVIEW", "", "TW", "360", ""}, 0},
        {{"DVIEW", "", "TW", "-1e-20", ""}, 0},  // rounds to the full turn
        {{"DVIEW", "", "TW", "1e308", ""}, 0},   // has no radians
        {{"UCS", "Z", "-90", "PLAN", ""}, pi / 2},      {{"UCS", "Z", "180", "PLAN", ""}, pi},
        {{"UCS", "Z", "1e-20", "PLAN", ""}, 0},
    };
    for (const Row& row : rows)
    {
        Session session;
        session.type(row.lines);
        EXPECT_NEAR(view(session).twist, row.twist, 1e-14) << row.lines[3];
        EXPECT_GE(view(session).twist, 0) << row.lines[3];
        EXPECT_LT(view(session).twist, 2 * pi) << row.lines[3];
    }
}

TEST(ViewCommands, twistThatIsKeptStaysAsTheDrawingHadIt)
{
    Session session;
    view(session).twist = -std::numbers::pi / 6;
    EXPECT_TRUE(
        has(session.type({"DVIEW", "", "TW", "", ""}), "Specify view twist angle <330>: \n"));
    EXPECT_EQ(view(session).twist, -std::numbers::pi / 6);
}

TEST(ViewCommands, screenIsLevelWithoutTwist)
{
    Session session;
    session.type({"VPOINT", "1,-1,2"});
    const AcGeMatrix3d frame = host::viewFrame(view(session));
    const AcGeVector3d x(1, 1, 0), y(-1, 1, 1), z(1, -1, 2);  // x is (0,0,1) by z
    EXPECT_LT((host::axisOf(frame, 0) - x / std::sqrt(2)).length(), 1e-15);
    EXPECT_LT((host::axisOf(frame, 1) - y / std::sqrt(3)).length(), 1e-15);
    EXPECT_LT((host::axisOf(frame, 2) - z / std::sqrt(6)).length(), 1e-15);
}

TEST(ViewCommands, planLooksAlongTheUcs)
{
    struct Row
    {
        std::vector<std::string> lines;
        AcGeVector3d screenX, screenY;
    };
    const double h = std::sqrt(3) / 2;
    const Row rows[] = {
        {{"UCS", "Z", "30", "PLAN", ""}, {h, 0.5, 0}, {-0.5, h, 0}},
        {{"UCS", "Z", "30", "PLAN", "C"}, {h, 0.5, 0}, {-0.5, h, 0}},
        {{"UCS", "Z", "30", "PLAN", "W"}, {1, 0, 0}, {0, 1, 0}},
        {{"UCS", "X", "90", "PLAN", ""}, {1, 0, 0}, {0, 0, 1}},
        {{"DVIEW", "", "TW", "30", "", "PLAN", ""}, {1, 0, 0}, {0, 1, 0}},
        {{"UCS", "Z", "30", "PLAN", "^C"}, {1, 0, 0}, {0, 1, 0}},
        {{"UCS", "Z", "30", "PLAN", "U", "site"}, {1, 0, 0}, {0, 1, 0}},
    };
    for (const Row& row : rows)
    {
        Session session;
        session.type(row.lines);
        const AcGeMatrix3d frame = host::viewFrame(view(session));
        EXPECT_LT((host::axisOf(frame, 0) - row.screenX).length(), 1e-14) << row.lines.back();
        EXPECT_LT((host::axisOf(frame, 1) - row.screenY).length(), 1e-14) << row.lines.back();
        EXPECT_FALSE(session.endedInsideCommand);
    }
}

TEST(ViewCommands, planWithoutAnAnswerLeavesTheLineToTheNextCommand)
{
    Session session;
    EXPECT_EQ(session.type({"PLAN", "SETVAR", "TILEMODE", ""}),
              "Command: PLAN\n"
              "Enter an option [Current ucs/Ucs/World] <Current>: \n"
              "Command: SETVAR\n"
              "Enter variable name: TILEMODE\n"
              "Enter new value for TILEMODE <1>: \n"
              "TILEMODE = 1\n"
              "Command: \n");
}

TEST(ViewCommands, turningKeepsTheMiddleOfTheScreen)
{
    Session session;
    view(session).centreX = 100;
    view(session).centreY = 50;
    session.type({"DVIEW", "", "TW", "90", ""});
    EXPECT_NEAR(view(session).centreX, -50, 1e-12);
    EXPECT_NEAR(view(session).centreY, 100, 1e-12);
}

TEST(SetvarCommand, asksForAValueAndPrintsTheVariable)
{
    struct Row
    {
        std::vector<std::string> lines;
        const char* said;
    };
    const Row rows[] = {
        {{"SETVAR", "ucsicon", ""}, "Enter new value for UCSICON <3>: \nUCSICON = 3\n"},
        {{"SETVAR", "UCSICON", "1"}, "UCSICON = 1\n"},
        {{"UCSICON", "0"}, "Enter new value for UCSICON <3>: 0\nUCSICON = 0\n"},
        {{"SETVAR", "UCSICON", "9", "2"},
         "Requires an integer between 0 and 3.\n"
         "Enter new value for UCSICON <3>: 2\nUCSICON = 2\n"},
        {{"SETVAR", "ELEVATION", "x", "1.5"}, "Requires numeric value.\n"},
        {{"SETVAR", "ELEVATION", "1.50"}, "ELEVATION = 1.5\n"},
        {{"SETVAR", "LTSCALE", "0", "2"}, "Value must be positive and nonzero.\n"},
        {{"SETVAR", "CLAYER", "absent", ""}, "Cannot set CLAYER to that value.\n"},
        {{"SETVAR", "LASTPOINT", "1,2,3"}, "LASTPOINT = 1,2,3\n"},
        {{"SETVAR", "nothing", ""}, "Unknown variable name.\nEnter variable name: \n"},
        {{"SETVAR", "UCSICON", "^C"}, "<3>: ^C\nCommand: "},
    };
    for (const Row& row : rows)
    {
        Session session;
        const std::string said = session.type(row.lines);
        EXPECT_TRUE(has(said, row.said)) << said;
        EXPECT_FALSE(session.endedInsideCommand) << said;
    }
}

TEST(SetvarCommand, theExtentsAreThoseOfTheCurrentSpaceAsItIsNow)
{
    Session session;
    EXPECT_TRUE(has(session.type({"EXTMIN"}), "\nEXTMIN = 1e+20,1e+20,1e+20\n"))
        << session.type({"EXTMIN"});
    AcDbBlockTableRecord* space = nullptr;
    ASSERT_EQ(
        acdbOpenObject(
            space, AcDbObjectId(host::coreOf(session.drawing()).roots()[host::Root::modelSpace]),
            AcDb::kForWrite),
        Acad::eOk);
    auto* line = new AcDbLine(AcGePoint3d(1, 2, 0), AcGePoint3d(30, 4, 5));
    space->appendAcDbEntity(line);
    line->close();
    space->close();
    const std::string said = session.type({"EXTMIN", "SETVAR", "extmax", "UCS", "10,10", "EXTMIN"});
    EXPECT_TRUE(has(said, "\nEXTMIN = 1,2,0\n")) << said;
    EXPECT_TRUE(has(said, "\nEXTMAX = 30,4,5\n")) << said;
    EXPECT_EQ(said.rfind("EXTMIN = 1,2,0"), said.rfind("EXTMIN =")) << "in WCS";
    EXPECT_FALSE(has(session.type({"SETVAR", "TILEMODE", "0", "EXTMIN"}), "EXTMIN = 1,2,0"));
}

TEST(SetvarCommand, readOnlyVariableIsPrintedAndTheNextLineIsACommand)
{
    const std::vector<std::string> rows[] = {
        {"VIEWTWIST", "UCSICON", ""},
        {"SETVAR", "VIEWTWIST", "UCSICON", ""},
        {"'SETVAR", "viewtwist", "UCSICON", ""},
    };
    for (const std::vector<std::string>& lines : rows)
    {
        Session session;
        const std::string said = session.type(lines);
        EXPECT_TRUE(has(said, "\nVIEWTWIST = 0\nCommand: UCSICON\n")) << said;
        EXPECT_TRUE(has(said, "\nUCSICON = 3\n")) << said;
        EXPECT_FALSE(has(said, "read only")) << said;
    }
    Session session;
    EXPECT_TRUE(has(session.type({"DWGNAME"}), "\nDWGNAME = "));
}

TEST(SetvarCommand, variableByItsNameIsStartedAgainByEnter)
{
    Session session;
    EXPECT_TRUE(has(session.type({"UCSFOLLOW", "1", "", "0"}), "UCSFOLLOW = 0\n"));
}

TEST(ArxCommand, listsTheCommandsOfModulesOnly)
{
    Session session;
    EXPECT_TRUE(has(session.type({"ARX", "C"}), "No module has registered a command.\n"));
    session.define(L"grid", [] {});
    EXPECT_TRUE(has(session.type({"ARX", "commands"}), "TEST: grid (grid)\nCommand: "));
}

TEST(ArxCommand, namesWhatItCannotLoad)
{
    Session session;
    EXPECT_TRUE(
        has(session.type({"ARX", "L", "\"absent.arx\""}), "absent.arx: there is no such module\n"));
    EXPECT_TRUE(has(session.type({"ARX", "U", "absent.arx"}), "absent.arx: not loaded\n"));
    EXPECT_FALSE(has(session.type({"ARX", "L", ""}), "absent"));
}

TEST(HostCommands, areFoundByTheirNames)
{
    Session session;
    for (const wchar_t* name :
         {L"UCS", L"VPOINT", L"DVIEW", L"PLAN", L"SETVAR", L"ARX", L"U", L"QUIT"})
    {
        EXPECT_NE(acedRegCmds->lookupCmd(name, true), nullptr) << testing::PrintToString(name);
    }
}
}  // namespace
