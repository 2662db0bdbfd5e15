#include "output/language.h"

#include <gtest/gtest.h>

namespace
{
TEST(Language, isRussianForTheRussianLocaleInAnyCaseAndForNoOther)
{
    struct Row
    {
        const wchar_t* locale;
        bool isRussian;
    };
    const Row rows[] = {
        {L"ru-RU", true}, {L"RU-ru", true},  {L"ru-ru", true}, {L"en-US", false},
        {L"ru", false},   {L"ru-UA", false}, {L"", false},     {L"ru-RU ", false},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(isRussian(row.locale), row.isRussian) << testing::PrintToString(row.locale);
    }
}
}  // namespace
