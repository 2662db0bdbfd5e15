// The list of colours: recent ones, then ByLayer, ByBlock and the first seven.
#include <gtest/gtest.h>

#include "tests/dialogs/panel.h"
#include "tests/support/session.h"

namespace
{
void show(Panel& panel, const std::function<void(CAcUiColorComboBox&)>& body)
{
    panel.onInit = [&] { body(panel.colors); };
    support::Session session;
    session.run([&] { panel.DoModal(); }, {"^C"});
}

std::wstring items(const CComboBox& list)
{
    std::wstring all;
    for (int i = 0; i < list.GetCount(); ++i)
    {
        CString text;
        list.GetLBText(i, text);
        all += std::wstring(text) + L"=" + std::to_wstring(list.GetItemData(i)) + L" ";
    }
    return all;
}

const std::wstring fixed =
    L"ByLayer=256 ByBlock=0 Red=1 Yellow=2 Green=3 Cyan=4 Blue=5 Magenta=6 White=7 ";

struct Added
{
    std::vector<int> colors;
    int position;              // of the last
    std::vector<int> recents;  // in front of the fixed
};

const Added added[] = {
    {{256}, 0, {}},
    {{0}, 1, {}},
    {{1}, 2, {}},
    {{7}, 8, {}},
    {{8}, 0, {8}},
    {{255}, 0, {255}},
    {{257}, -1, {}},
    {{-1}, -1, {}},
    {{12, 30}, 0, {30, 12}},
    {{12, 30, 12}, 1, {30, 12}},  // stays where it is
    {{12, 3}, 5, {12}},
    {{11, 12, 13, 14, 15, 16}, 0, {16, 15, 14, 13, 12, 11}},
    {{11, 12, 13, 14, 15, 16, 17}, 0, {17, 16, 15, 14, 13, 12}},
    {{11, 12, 13, 14, 15, 16, 17, 11}, 0, {11, 17, 16, 15, 14, 13}},
};

std::wstring recentItems(const std::vector<int>& colors)
{
    std::wstring all;
    for (const int color : colors)
    {
        const std::wstring number = std::to_wstring(color);
        all += L"Color " + number + L"=" + number + L" ";
    }
    return all;
}

void addAndLook(CAcUiColorComboBox& list, const Added& row)
{
    int position = -1;
    for (const int color : row.colors)
    {
        position = list.AddColorToMRU(color);
    }
    EXPECT_EQ(position, row.position);
    EXPECT_EQ(items(list), recentItems(row.recents) + fixed);
    EXPECT_EQ(list.GetCurSel(), -1);
}

TEST(ColorCombo, keepsSixRecentColorsInFrontOfTheFixed)
{
    for (const Added& row : added)
    {
        Panel panel;
        show(panel, [&](CAcUiColorComboBox& list) { addAndLook(list, row); });
    }
}

TEST(ColorCombo, theIndexIsThatOfTheSelectedColor)
{
    Panel panel;
    show(panel,
         [](CAcUiColorComboBox& list)
         {
             EXPECT_EQ(list.GetCurrentItemColorIndex(), -1);
             for (const int color : {0, 256, 7, 42})
             {
                 list.SetCurSel(list.AddColorToMRU(color));
                 EXPECT_EQ(list.GetCurrentItemColorIndex(), color);
             }
             // The selection stays with its colour.
             list.AddColorToMRU(43);
             EXPECT_EQ(list.GetCurrentItemColorIndex(), 42);
         });
}

TEST(ColorCombo, anItemIsFoundByItsCargo)
{
    Panel panel;
    show(panel,
         [](CAcUiColorComboBox& list)
         {
             EXPECT_EQ(list.AddItemToMRU(L"Mine", 1000), 0);
             EXPECT_EQ(list.AddItemToMRU(L"Mine again", 1000), 0);
             EXPECT_EQ(list.FindCargo(1000), 0);
             EXPECT_EQ(list.FindCargo(256), 1);
             EXPECT_EQ(list.FindCargo(99), -1);
             EXPECT_EQ(list.GetCount(), 10);
         });
}

TEST(ColorCombo, inANewWindowTheListBeginsAnew)
{
    Panel panel;
    const auto addSix = [](CAcUiColorComboBox& list)
    {
        for (int color = 11; color <= 16; ++color)
        {
            list.AddColorToMRU(color);
        }
    };
    show(panel, addSix);
    show(panel,
         [](CAcUiColorComboBox& list)
         {
             list.AddColorToMRU(30);
             EXPECT_EQ(items(list), L"Color 30=30 " + fixed);
         });
}
}  // namespace
