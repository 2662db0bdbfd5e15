#include <gtest/gtest.h>

#include "acedads.h"
#include "acutads.h"
#include "rxmfcapi.h"
#include "tests/support/session.h"
#include "windows.h"

namespace
{
using support::Session;

TEST(Output, printsExactlyWhatTheModuleFormats)
{
    Session session;
    EXPECT_EQ(session.run([] { acutPrintf(L"\n*** шаг: %.2f; %s ***", 12.5, L"крест"); }),
              "\n*** шаг: 12.50; крест ***");
    EXPECT_EQ(session.run([] { EXPECT_EQ(acutPrintf(nullptr), RTERROR); }), "");
}

TEST(Output, longTextComesOutWhole)
{
    std::wstring text;
    std::string said;
    for (int i = 0; i < 400; ++i)
    {
        text += L"сетка";
        said += "сетка";
    }
    Session session;
    EXPECT_EQ(session.run([&] { acutPrintf(text.c_str()); }), said);
    EXPECT_EQ(session.run([&] { acutPrintf(L"%s", text.c_str()); }), said);
}

TEST(Output, alertIsALineOfItsOwn)
{
    Session session;
    EXPECT_EQ(session.run(
                  []
                  {
                      acutPrintf(L"text");
                      acedAlert(L"Внимание");
                      acedAlert(L"again");
                  }),
              "text\n[alert] Внимание\n[alert] again\n");
}

TEST(Meter, isTracedWhenAsked)
{
    Session session;
    const auto body = []
    {
        EXPECT_EQ(acedSetStatusBarProgressMeterPos(1), -1);  // no command line exists yet
        EXPECT_EQ(acedSetStatusBarProgressMeter(L"Grouping", 0, 10), 0);
        EXPECT_EQ(acedSetStatusBarProgressMeterPos(4), 0);
        EXPECT_EQ(acedSetStatusBarProgressMeterPos(-3), 0);  // a step
        acedRestoreStatusBar();
        acedRestoreStatusBar();
        EXPECT_EQ(acedSetStatusBarProgressMeter(L"", 0, 0), 0);
        acedRestoreStatusBar();
        EXPECT_EQ(acedSetStatusBarProgressMeter(L"", 1, 0), -1);
    };
    EXPECT_EQ(session.run(body), "");
    session.trace = true;
    EXPECT_EQ(session.run(body),
              "[meter] Grouping 0..10\n[meter] 4\n[meter] 7\n[meter] restored\n"
              "[meter]  0..0\n[meter] restored\n");
}

struct BoxRow
{
    unsigned type;
    std::vector<std::string> lines;
    int id;
    const char* said;
};

TEST(MessageBoxes, answerIsAButton)
{
    const BoxRow rows[] = {
        {MB_YESNO, {"yes"}, IDYES, "(Yes/No) -> yes\n"},
        {MB_YESNO, {" NO "}, IDNO, "(Yes/No) -> no\n"},
        {MB_YESNO, {""}, IDYES, "(Yes/No) -> yes\n"},
        {MB_YESNO | MB_DEFBUTTON2, {""}, IDNO, "(Yes/No) -> no\n"},
        {MB_YESNO,
         {"maybe", "no"},
         IDNO,
         "-> maybe\nAnswer with one of the buttons: Yes/No.\n[message box] "},
        {MB_YESNO, {"^C", "yes"}, IDYES, "-> ^C\nAnswer with one of"},
        {MB_OK, {""}, IDOK, "(OK) -> ok\n"},
        {MB_OK, {"^C"}, IDOK, "(OK) -> ok\n"},
        {MB_OKCANCEL, {"^C"}, IDCANCEL, "(OK/Cancel) -> cancel\n"},
        {MB_YESNOCANCEL, {"cancel"}, IDCANCEL, "(Yes/No/Cancel) -> cancel\n"},
    };
    for (const BoxRow& row : rows)
    {
        Session session;
        int id = 0;
        const std::string said = session.run(
            [&] { id = MessageBoxW(adsw_acadMainWnd(), L"Proceed?", L"Attention", row.type); },
            row.lines);
        EXPECT_EQ(id, row.id) << said;
        EXPECT_NE(said.find(row.said), std::string::npos) << said;
        EXPECT_TRUE(said.starts_with("[message box] Attention: Proceed? (")) << said;
        EXPECT_FALSE(session.endedInsideCommand);
    }
}

TEST(MessageBoxes, endOfInputPressesTheLastButtonAndCountsAsAnEnd)
{
    Session session;
    int id = 0;
    EXPECT_EQ(session.run([&] { id = MessageBoxW(nullptr, L"T", L"C", MB_YESNO); }),
              "[message box] C: T (Yes/No) -> no\n");
    EXPECT_EQ(id, IDNO);
    EXPECT_TRUE(session.endedInsideCommand);
}

TEST(Alert, isRefusedWithoutACommandLine)
{
    EXPECT_EQ(acedAlert(L"T"), RTERROR);
}

TEST(MessageBoxes, doNotUseUpTheOptionsOfAPrompt)
{
    Session session;
    session.run(
        []
        {
            ACHAR word[133];
            acedInitGet(0, L"Apply");
            MessageBoxW(nullptr, L"T", L"C", MB_OK);
            EXPECT_EQ(acedGetKword(L"", word), RTNORM);
        },
        {"", "apply"});
}
}  // namespace
