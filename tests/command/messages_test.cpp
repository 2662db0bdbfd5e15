#include "command/messages.h"

#include <gtest/gtest.h>

#include "tests/command/scriptededitor.h"

namespace
{
TEST(Messages, areRussianForTheRussianProductWhateverTheCaseOfItsName)
{
    struct Row
    {
        const wchar_t* locale;
        const wchar_t* settingsKeyword;
    };
    const Row rows[] = {
        {L"ru-RU", L"\x041D"}, {L"RU-ru", L"\x041D"}, {L"ru-ru", L"\x041D"}, {L"en-US", L"S"},
        {L"ru", L"S"},         {L"ru-UA", L"S"},      {L"", L"S"},
    };
    for (const Row& row : rows)
    {
        EXPECT_STREQ(messagesFor(row.locale).settingsKeyword, row.settingsKeyword) << row.locale;
    }
}
TEST(Messages, areInTheLanguageOfTheProductAndInEnglishWhereItHasNone)
{
    struct Row
    {
        LCID locale;
        const wchar_t* name;
    };
    for (const Row row : {Row{0x0419, L"ru-RU"}, {0x0407, L"de-DE"}, {0xFFFE, L"en-US"}})
    {
        ScriptedEditor editor;
        editor.locale = row.locale;
        EXPECT_STREQ(productLocaleName(), row.name);
    }
}
}  // namespace
