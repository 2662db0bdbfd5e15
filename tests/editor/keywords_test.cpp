#include "host/editor/keywords.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <span>

namespace
{
struct Row
{
    const wchar_t* list;
    const wchar_t* typed;
    const wchar_t* result;  // null: no keyword
};

void expectRows(std::span<const Row> rows)
{
    for (const Row& row : rows)
    {
        const auto found = host::KeywordList(row.list).match(row.typed);
        EXPECT_EQ(found.value_or(L"(none)"), row.result ? row.result : L"(none)")
            << std::string(row.typed, row.typed + wcslen(row.typed));
    }
}

TEST(Keywords, capitalsAreTheLeastThatHasToBeTyped)
{
    const Row rows[] = {
        {L"LType", L"LT", L"LType"},
        {L"LType", L"lty", L"LType"},
        {L"LType", L"LTYPE", L"LType"},
        {L"LType", L"L", nullptr},
        {L"LType", L"LTYPEX", nullptr},
        {L"eXit", L"x", L"eXit"},  // from its capitals on
        {L"eXit", L"xi", L"eXit"},
        {L"eXit", L"exit", L"eXit"},
        {L"eXit", L"e", nullptr},
        {L"3Dpoly", L"3d", L"3Dpoly"},  // a digit beside the capital belongs to it
        {L"3Dpoly", L"d", nullptr},
        {L"small", L"s", nullptr},  // no capital: in full
        {L"small", L"SMALL", L"small"},
        {L"Top-left", L"TOP-L", L"Top-left"},
        {L"A S", L"", nullptr},
        {L"", L"a", nullptr},
    };
    expectRows(rows);
}

TEST(Keywords, commaNamesAnAbbreviationThatIsNotGivenBack)
{
    const Row rows[] = {
        {L"LTYPE,LT", L"lt", L"LTYPE"},
        {L"LTYPE,LT", L"ltyp", L"LTYPE"},
        {L"LTYPE,LT", L"l", nullptr},
        {L"QUIT,X", L"x", L"QUIT"},  // the abbreviation need not be its start
    };
    expectRows(rows);
}

TEST(Keywords, aOneLetterKeywordMatchesOnlyThatLetter)
{
    const Row rows[] = {
        {L"S", L"s", L"S"},
        {L"A S", L"S", L"S"},
        {L"S", L"Settings", nullptr},
        {L"A S", L"AS", nullptr},
    };
    expectRows(rows);
}

TEST(Keywords, cyrillicLettersMatchWithoutCase)
{
    const Row rows[] = {
        {L"П Н", L"п", L"П"},
        {L"П Н", L"Н", L"Н"},
        {L"П Н", L"Настройки", nullptr},
        {L"Настройки", L"н", L"Настройки"},
        {L"Настройки", L"НАСТР", L"Настройки"},
    };
    expectRows(rows);
}

TEST(Keywords, globalFormIsGivenBackAndTypedWithAnUnderscore)
{
    const Row rows[] = {
        {L"Да Нет _ Yes No", L"д", L"Yes"},   {L"Да Нет _ Yes No", L"_no", L"No"},
        {L"Да Нет _ Yes No", L"no", nullptr}, {L"Да Нет _ Yes No", L"_нет", nullptr},
        {L"Yes No", L"_Y", L"Yes"},  // the keyword has only its own form
        {L"Yes No", L"_", nullptr},
    };
    expectRows(rows);
}

TEST(Keywords, fullNameGoesBeforeAnAbbreviation)
{
    const Row rows[] = {
        {L"LAyer LA", L"la", L"LA"},
        {L"LAyer LA", L"lay", L"LAyer"},
        {L"One Other", L"o", L"One"},  // both: the first
    };
    expectRows(rows);
}
}  // namespace
