#include "command/largegrid.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/command/scriptededitor.h"

namespace
{
const double notSet = std::numeric_limits<double>::max();

struct Question
{
    double width, height, HorStep, VertStep;
    const wchar_t* asked;  // null: no question
};

const wchar_t* const vertical = L"Large number of vertical lines in grid. Proceed?";
const wchar_t* const horizontal = L"Large number of horizontal lines in grid. Proceed?";
const wchar_t* const both = L"Large number of vertical and horizontal lines in grid. Proceed?";

const Question questions[] = {
    {5100, 100, 100, 100, horizontal},  // the question about the width mentions horizontal lines
    {100, 5100, 100, 100, vertical},
    {5100, 5100, 100, 100, both},
    {5000, 5000, 100, 100, nullptr},  // exactly 50 steps are not many
    {5001, 5000, 100, 100, horizontal},
    {5100, 100, -100, 100, horizontal},
    {100, 100, 0, 100, horizontal},  // infinitely many lines
    {100, 100, 100, 0, vertical},
    {0, 100, 0, 100, nullptr},  // 0/0 is not a number
    {0, 0, 0, 0, nullptr},
    {1e300, 1e9, notSet, notSet, nullptr},
};

TEST(LargeGrid, isAskedAboutAboveFiftySteps)
{
    for (const Question& row : questions)
    {
        GridSettings settings;
        settings.HorStep = row.HorStep;
        settings.VertStep = row.VertStep;
        for (const int button : {IDYES, IDNO, 0})
        {
            ScriptedEditor editor;
            std::vector<std::wstring> expected;
            if (row.asked != nullptr)
            {
                editor.boxAnswers = {button};
                expected = {std::wstring(L"box Attention: ") + row.asked};
            }
            const bool built = mayBuildGrid(row.width, row.height, settings, L"en-US");
            EXPECT_EQ(built, row.asked == nullptr || button == IDYES);
            EXPECT_EQ(editor.log, expected)
                << row.width << " " << row.height << " " << row.HorStep << " " << row.VertStep;
        }
    }
}

TEST(LargeGrid, isAskedAboutInRussian)
{
    struct Row
    {
        double width, height;
        const wchar_t* asked;
    };
    const Row rows[] = {
        {100, 5100, L"Большое количество вертикальных линий в сетке. Продолжить?"},
        {5100, 100, L"Большое количество горизонтальных линий в сетке. Продолжить?"},
        {5100, 5100,
         L"Большое количество вертикальных и горизонтальных линий в сетке. Продолжить?"},
    };
    for (const Row& row : rows)
    {
        ScriptedEditor editor;
        editor.boxAnswers = {IDNO};
        EXPECT_FALSE(mayBuildGrid(row.width, row.height, GridSettings(), L"RU-ru"));
        EXPECT_EQ(editor.log, std::vector{std::wstring(L"box Внимание: ") + row.asked});
    }
}
}  // namespace
