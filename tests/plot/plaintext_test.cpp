#include "host/plot/plaintext.h"

#include <gmock/gmock.h>

using namespace host::plot;
using testing::ElementsAre;

TEST(PlainText, percentCodesAreTheCharactersTheyStandFor)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* plain;
    } rows[] = {
        {L"45%%d", L"45\u00B0"},   {L"%%P0.1", L"\u00B10.1"}, {L"%%c20", L"\u00D820"},
        {L"%%uA%%uB%%oC", L"ABC"}, {L"%%065%%%", L"A%"},      {L"5%", L"5%"},
        {L"5%%", L"5%%"},          {L"%%x", L"%%x"},          {L"a\tb\nc", L"a b c"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(withoutPercentCodes(row.text), row.plain) << row.text;
    }
}

TEST(PlainText, formattingCodesAreLeftOut)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* plain;
    } rows[] = {
        {L"{\\fArial|b0;Bold} \\H2.5x;tall", L"Bold tall"},
        {L"\\A1;\\C3;\\W0.8;\\T1.1;\\Q15;x", L"x"},
        {L"\\LA\\l\\OB\\o\\KC\\k", L"ABC"},
        {L"1\\S1/2;\\S3#4;\\S5^6;", L"11/23/45/6"},
        {L"a\\~b", L"a\u00A0b"},
        {L"\\{x\\}\\\\", L"{x}\\"},
        {L"%%c5", L"\u00D85"},
        {L"end\\", L"end\\"},
        {L"\\fArial without an end", L""},
    };
    for (const auto& row : rows)
    {
        EXPECT_THAT(paragraphs(row.text), ElementsAre(row.plain)) << row.text;
    }
}

TEST(PlainText, aParagraphIsALine)
{
    EXPECT_THAT(paragraphs(L"a\\Pb\\P\\Pc"), ElementsAre(L"a", L"b", L"", L"c"));
    EXPECT_THAT(paragraphs(L"a\nb"), ElementsAre(L"a", L"b"));
    EXPECT_THAT(paragraphs(L""), ElementsAre(L""));
}
