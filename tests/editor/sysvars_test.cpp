#include "host/editor/sysvars.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <numbers>

#include "acedads.h"
#include "acutmem.h"
#include "geassign.h"
#include "host/database/drawing.h"
#include "host/editor/ucs.h"
#include "host/windows/text.h"
#include "tests/support/session.h"

namespace
{
resbuf shortValue(int value)
{
    resbuf buffer{};
    buffer.restype = RTSHORT;
    buffer.resval.rint = short(value);
    return buffer;
}

resbuf realValue(double value)
{
    resbuf buffer{};
    buffer.restype = RTREAL;
    buffer.resval.rreal = value;
    return buffer;
}

resbuf textValue(const wchar_t* text)
{
    resbuf buffer{};
    buffer.restype = RTSTR;
    buffer.resval.rstring = const_cast<wchar_t*>(text);
    return buffer;
}

std::wstring textOf(const wchar_t* name)
{
    resbuf buffer{};
    EXPECT_EQ(acedGetVar(name, &buffer), RTNORM);
    EXPECT_EQ(buffer.restype, RTSTR);
    const std::wstring text = buffer.resval.rstring;
    acutDelString(buffer.resval.rstring);
    return text;
}

AcGePoint3d pointOf(const wchar_t* name)
{
    resbuf buffer{};
    EXPECT_EQ(acedGetVar(name, &buffer), RTNORM);
    EXPECT_EQ(buffer.restype, RT3DPOINT);
    return asPnt3d(buffer.resval.rpoint);
}

TEST(SystemVariables, newDrawingHasItsInitialValues)
{
    struct Row
    {
        const wchar_t* name;
        short type;
        const wchar_t* text;
    };
    const Row rows[] = {
        {L"UCSICON", RTSHORT, L"3"},       {L"ucsfollow", RTSHORT, L"0"},  // letter case is ignored
        {L"UCSORG", RT3DPOINT, L"0,0,0"},  {L"UCSXDIR", RT3DPOINT, L"1,0,0"},
        {L"UCSYDIR", RT3DPOINT, L"0,1,0"}, {L"UCSNAME", RTSTR, L""},
        {L"VIEWDIR", RT3DPOINT, L"0,0,1"}, {L"VIEWTWIST", RTREAL, L"0"},
        {L"TARGET", RT3DPOINT, L"0,0,0"},  {L"ELEVATION", RTREAL, L"0"},
        {L"TILEMODE", RTSHORT, L"1"},      {L"CVPORT", RTSHORT, L"2"},
        {L"CLAYER", RTSTR, L"0"},          {L"TEXTSTYLE", RTSTR, L"Standard"},
        {L"CECOLOR", RTSTR, L"BYLAYER"},   {L"CELTYPE", RTSTR, L"ByLayer"},
        {L"CELTSCALE", RTREAL, L"1"},      {L"CELWEIGHT", RTSHORT, L"-1"},
        {L"WORLDUCS", RTSHORT, L"1"},      {L"WORLDVIEW", RTSHORT, L"1"},
        {L"BLOCKEDITOR", RTSHORT, L"0"},   {L"CMDACTIVE", RTSHORT, L"0"},
        {L"DWGTITLED", RTSHORT, L"0"},     {L"DWGNAME", RTSTR, L"Drawing1.dwg"},
        {L"LOCALE", RTSTR, L"ENU"},        {L"ACADVER", RTSTR, L"19.1s (LMS Tech)"},
    };
    support::Session session;
    for (const Row& row : rows)
    {
        resbuf buffer{};
        ASSERT_EQ(acedGetVar(row.name, &buffer), RTNORM) << testing::PrintToString(row.name);
        EXPECT_EQ(buffer.restype, row.type) << testing::PrintToString(row.name);
        EXPECT_EQ(host::variableText(row.name), row.text);
        if (buffer.restype == RTSTR)
        {
            acutDelString(buffer.resval.rstring);
        }
    }
}

TEST(SystemVariables, valuesThatDoNotFitAreRefusedAndErrnoTells)
{
    struct Row
    {
        const wchar_t* name;
        resbuf value;
        int error;
    };
    const Row rows[] = {
        {L"NOSUCHVAR", shortValue(0), 18},
        {L"UCSICON", realValue(0), 19},
        {L"ELEVATION", shortValue(1), 19},  // a whole number is not a real
        {L"CLAYER", shortValue(0), 19},
        {L"VIEWTWIST", realValue(0), 20},
        {L"UCSORG", realValue(0), 20},
        {L"CMDNAMES", textValue(L"X"), 20},
        {L"UCSFOLLOW", shortValue(2), 22},
        {L"UCSICON", shortValue(-1), 22},
        {L"CELTSCALE", realValue(0), 22},
        {L"CLAYER", textValue(L"absent"), 25},
        {L"CELTYPE", textValue(L"absent"), 26},
        {L"CECOLOR", textValue(L"256"), 27},
        {L"TEXTSTYLE", textValue(L"absent"), 28},
    };
    support::Session session;
    for (const Row& row : rows)
    {
        session.run(
            [&]
            {
                EXPECT_EQ(acedSetVar(row.name, &row.value), RTERROR);
                EXPECT_EQ(host::variableText(L"ERRNO"), std::to_wstring(row.error))
                    << testing::PrintToString(row.name);
            });
    }
    EXPECT_EQ(host::variableText(L"UCSICON"), L"3");
}

TEST(SystemVariables, valuesThatFitAreTaken)
{
    struct Row
    {
        const wchar_t* name;
        resbuf value;
        const wchar_t* text;
    };
    const Row rows[] = {
        {L"ucsicon", shortValue(0), L"0"},
        {L"UCSFOLLOW", shortValue(1), L"1"},
        {L"ELEVATION", realValue(-2.5), L"-2.5"},
        {L"LTSCALE", realValue(10), L"10"},
        {L"CECOLOR", textValue(L"7"), L"7"},
        {L"CECOLOR", textValue(L"byblock"), L"BYBLOCK"},
        {L"CELTYPE", textValue(L"BYBLOCK"), L"ByBlock"},
        {L"TEXTSTYLE", textValue(L"standard"), L"Standard"},
        {L"CLAYER", textValue(L"0"), L"0"},
        {L"CELWEIGHT", shortValue(25), L"25"},
        {L"TILEMODE", shortValue(0), L"0"},
        {L"ERRNO", shortValue(0), L"0"},
    };
    support::Session session;
    for (const Row& row : rows)
    {
        EXPECT_EQ(acedSetVar(row.name, &row.value), RTNORM) << testing::PrintToString(row.name);
        EXPECT_EQ(host::variableText(row.name), row.text) << testing::PrintToString(row.name);
    }
}

TEST(SystemVariables, valueThatWasReadCanBeSetAgain)
{
    struct Row
    {
        const wchar_t* name;
        int value, other;
    };
    const Row rows[] = {
        {L"UCSICON", 3, 0},
        {L"UCSICON", 0, 1},
        {L"UCSFOLLOW", 0, 1},
        {L"UCSFOLLOW", 1, 0},
    };
    support::Session session;
    for (const Row& row : rows)
    {
        const resbuf value = shortValue(row.value), other = shortValue(row.other);
        resbuf read{};
        EXPECT_EQ(acedSetVar(row.name, &value), RTNORM);
        EXPECT_EQ(acedGetVar(row.name, &read), RTNORM);
        EXPECT_EQ(acedSetVar(row.name, &other), RTNORM);
        EXPECT_EQ(acedSetVar(row.name, &read), RTNORM) << testing::PrintToString(row.name);
        EXPECT_EQ(host::variableText(row.name), std::to_wstring(row.value))
            << testing::PrintToString(row.name);
    }
}

TEST(SystemVariables, viewIsGivenInTheUcsAndTheUcsInTheWorld)
{
    support::Session session;
    host::setUcs(session.document(), host::frameOf({10, 20, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 0}));
    host::View& view = host::stateOf(session.drawing()).view;
    view.direction = AcGeVector3d(2, 0, 0);
    view.target = AcGePoint3d(10, 20, 5);
    view.twist = std::numbers::pi / 6;
    EXPECT_EQ(pointOf(L"VIEWDIR"), AcGePoint3d(0, 0, 2));  // not of unit length
    EXPECT_EQ(pointOf(L"TARGET"), AcGePoint3d(0, 5, 0));
    EXPECT_EQ(pointOf(L"UCSORG"), AcGePoint3d(10, 20, 0));
    EXPECT_EQ(pointOf(L"UCSXDIR"), AcGePoint3d(0, 1, 0));
    EXPECT_EQ(pointOf(L"UCSYDIR"), AcGePoint3d(0, 0, 1));
    resbuf twist{};
    acedGetVar(L"VIEWTWIST", &twist);
    EXPECT_EQ(twist.resval.rreal, std::numbers::pi / 6);
    EXPECT_EQ(host::variableText(L"VIEWTWIST"), L"30");
    EXPECT_EQ(host::variableText(L"WORLDUCS"), L"0");
}

TEST(SystemVariables, viewTwistIsWithinOneTurnWhateverTheDrawingHolds)
{
    using std::numbers::pi;
    struct Row
    {
        double held, read;
        const wchar_t* text;
    };
    const Row rows[] = {
        {-pi / 6, 11 * pi / 6, L"330"},
        {13 * pi / 6, pi / 6, L"30"},
        {-pi, pi, L"180"},
        {2 * pi, 0, L"0"},
        {-1e-20, 0, L"0"},  // rounds to the full turn
    };
    support::Session session;
    for (const Row& row : rows)
    {
        host::stateOf(session.drawing()).view.twist = row.held;
        resbuf twist{};
        ASSERT_EQ(acedGetVar(L"VIEWTWIST", &twist), RTNORM);
        EXPECT_NEAR(twist.resval.rreal, row.read, 1e-14) << row.held;
        EXPECT_GE(twist.resval.rreal, 0) << row.held;
        EXPECT_LT(twist.resval.rreal, 2 * pi) << row.held;
        EXPECT_EQ(host::variableText(L"VIEWTWIST"), row.text) << row.held;
        EXPECT_EQ(host::stateOf(session.drawing()).view.twist, row.held);
    }
}

TEST(SystemVariables, whateverTheDrawingHoldsCanBeRead)
{
    support::Session session;
    auto& kept = host::stateOf(session.drawing()).variables;
    kept[L"OWNNUMBER"] = 70000;
    kept[L"OWNTEXT"] = L"да";
    kept[L"LUNITS"] = L"of the wrong kind";
    resbuf buffer{};
    ASSERT_EQ(acedGetVar(L"ownnumber", &buffer), RTNORM);
    EXPECT_EQ(buffer.restype, RTLONG);
    EXPECT_EQ(buffer.resval.rlong, 70000);
    EXPECT_EQ(textOf(L"OWNTEXT"), L"да");
    EXPECT_EQ(host::variableText(L"LUNITS"), L"2");
    const resbuf value = shortValue(1);
    EXPECT_EQ(acedSetVar(L"OWNNUMBER", &value), RTERROR);
}

TEST(SystemVariables, runningCommandsAreNamed)
{
    support::Session session;
    session.define(
        L"inner",
        []
        {
            EXPECT_EQ(textOf(L"CMDNAMES"), L"BODY'INNER");
            EXPECT_EQ(host::variableText(L"CMDACTIVE"), L"3");
        },
        ACRX_CMD_TRANSPARENT);
    session.run(
        []
        {
            AcGePoint3d point;
            EXPECT_EQ(textOf(L"CMDNAMES"), L"BODY");
            EXPECT_EQ(host::variableText(L"CMDACTIVE"), L"1");
            acedGetPoint(nullptr, L"", asDblArray(point));
        },
        {"'inner", ""});
    EXPECT_EQ(textOf(L"CMDNAMES"), L"");
}

TEST(SystemVariables, drawingIsNamedByItsFile)
{
    support::Session session;
    const auto folder = std::filesystem::temp_directory_path() / u8"чертежи";
    const std::u8string prefix = (folder / "").u8string();
    session.document().setPath(folder / "site.dxf");
    EXPECT_EQ(textOf(L"DWGNAME"), L"site.dxf");
    EXPECT_EQ(textOf(L"DWGPREFIX"), host::fromUtf8(std::string(prefix.begin(), prefix.end())));
    EXPECT_EQ(host::variableText(L"DWGTITLED"), L"1");
}

TEST(SystemVariables, thereAreNoneWithoutADocument)
{
    resbuf buffer = shortValue(0);
    EXPECT_EQ(acedGetVar(L"UCSICON", &buffer), RTERROR);
    EXPECT_EQ(acedSetVar(L"UCSICON", &buffer), RTERROR);
}
}  // namespace
