#include "command/messages.h"

#include <gtest/gtest.h>

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
        {L"ru-RU", L"\x041D"},
        {L"RU-ru", L"\x041D"},
        {L"ru-ru", L"\x041D"},
        {L"en-US", L"S"     },
        {L"ru",    L"S"     },
        {L"ru-UA", L"S"     },
        {L"",      L"S"     },
    };
    for (const Row& row : rows)
    {
        EXPECT_STREQ(messagesFor(row.locale).settingsKeyword, row.settingsKeyword) << row.locale;
    }
}
}  // namespace
