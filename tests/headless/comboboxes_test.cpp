#include <gtest/gtest.h>

#include "tests/headless/testdialog.h"

using support::TemplateBuilder;

namespace
{
const int list = 5;

TemplateBuilder form(DWORD style = 0)
{
    return TemplateBuilder(L"Form", 100, 100)
        .control(list, L"ComboBox", CBS_DROPDOWNLIST | style, 0, 0, 60, 80);
}

class FilledList : public TestDialog
{
public:
    FilledList(std::initializer_list<LPCWSTR> texts, DWORD style = 0) : TestDialog(form(style))
    {
        for (const LPCWSTR text : texts)
        {
            tell(CB_ADDSTRING, 0, text);
        }
    }

    LRESULT tell(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return send(list, message, wParam, lParam);
    }
    LRESULT tell(UINT message, WPARAM wParam, LPCWSTR text) const
    {
        return send(list, message, wParam, text);
    }

    std::wstring item(WPARAM index) const
    {
        const LRESULT length = tell(CB_GETLBTEXTLEN, index);
        if (length == CB_ERR)
        {
            return L"none";
        }
        std::wstring text(std::size_t(length), L'?');
        EXPECT_EQ(tell(CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data())), length);
        return text;
    }

    std::wstring items() const
    {
        std::wstring all;
        for (LRESULT i = 0; i < tell(CB_GETCOUNT); ++i)
        {
            all += (i > 0 ? L" " : L"") + item(WPARAM(i));
        }
        return all;
    }
};

const WPARAM none = WPARAM(-1);
}  // namespace

TEST(ComboBoxes, itemsStandInTheOrderOfAdding)
{
    const FilledList box({L"Standard", L"ГОСТ", L"Annotative"});
    EXPECT_EQ(box.items(), L"Standard ГОСТ Annotative");
    EXPECT_EQ(box.tell(CB_ADDSTRING, 0, L"last"), 3);
}

TEST(ComboBoxes, aSortedListTakesItemsWhereTheyBelong)
{
    const FilledList box({L"b", L"Г", L"C", L"а", L"A"}, CBS_SORT);
    EXPECT_EQ(box.items(), L"A b C а Г");
    EXPECT_EQ(box.tell(CB_ADDSTRING, 0, L"B1"), 2);
    EXPECT_EQ(box.tell(CB_INSERTSTRING, 0, L"z"), 0);
    EXPECT_EQ(box.items(), L"z A b B1 C а Г");
}

TEST(ComboBoxes, insertingTakesAnyPositionUpToTheEnd)
{
    const FilledList box({L"a", L"b"});
    const struct
    {
        WPARAM index;
        LRESULT result;
        LPCWSTR items;
    } rows[] = {
        {0, 0, L"x a b"},
        {3, 3, L"x a b x"},
        {none, 4, L"x a b x x"},
        {6, CB_ERR, L"x a b x x"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(box.tell(CB_INSERTSTRING, row.index, L"x"), row.result);
        EXPECT_EQ(box.items(), row.items);
    }
}

TEST(ComboBoxes, selectingTellsNobody)
{
    const FilledList box({L"a", L"b"});
    const struct
    {
        WPARAM index;
        LRESULT result;
        LPCWSTR text;
    } rows[] = {
        {1, 1, L"b"}, {0, 0, L"a"}, {2, CB_ERR, L""}, {1, 1, L"b"}, {none, CB_ERR, L""},
    };
    EXPECT_EQ(box.tell(CB_GETCURSEL), CB_ERR);
    for (const auto& row : rows)
    {
        EXPECT_EQ(box.tell(CB_SETCURSEL, row.index), row.result);
        EXPECT_EQ(box.tell(CB_GETCURSEL), row.result);
        EXPECT_EQ(textOf(box.control(list)), row.text);
    }
    EXPECT_TRUE(box.told.empty());
}

TEST(ComboBoxes, theTextIsThatOfTheSelectionAndCannotBeSet)
{
    const FilledList box({L"a"});
    EXPECT_FALSE(SetWindowTextW(box.control(list), L"b"));
    EXPECT_EQ(textOf(box.control(list)), L"");
    box.tell(CB_SETCURSEL, 0);
    EXPECT_FALSE(SetWindowTextW(box.control(list), L"b"));
    EXPECT_EQ(textOf(box.control(list)), L"a");
}

TEST(ComboBoxes, theSelectionStaysWithItsItem)
{
    const FilledList box({L"a", L"b", L"c"});
    box.tell(CB_SETCURSEL, 1);
    box.tell(CB_INSERTSTRING, 1, L"x");
    EXPECT_EQ(textOf(box.control(list)), L"b");
    box.tell(CB_INSERTSTRING, 3, L"x");
    EXPECT_EQ(textOf(box.control(list)), L"b");
    EXPECT_EQ(box.tell(CB_DELETESTRING, 0), 4);
    EXPECT_EQ(textOf(box.control(list)), L"b");
    EXPECT_EQ(box.tell(CB_DELETESTRING, 3), 3);
    EXPECT_EQ(box.tell(CB_GETCURSEL), 1);
    EXPECT_EQ(box.tell(CB_DELETESTRING, 1), 2);
    EXPECT_EQ(box.tell(CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(box.tell(CB_DELETESTRING, 2), CB_ERR);
    EXPECT_EQ(box.items(), L"x x");
}

TEST(ComboBoxes, exactTextIsFoundInAnyCaseAndRoundTheEnd)
{
    const FilledList box({L"Точка", L"point", L"ТОЧКА", L"Point 2"});
    const struct
    {
        WPARAM after;
        LPCWSTR text;
        LRESULT found;
    } rows[] = {
        {none, L"точка", 0},     {0, L"точка", 2},
        {2, L"точка", 0},        {1, L"POINT", 1},  // itself last
        {none, L"poin", CB_ERR}, {none, L"point  2", CB_ERR},
        {none, L"POINT 2", 3},   {3, L"точка", 0},
        {9, L"точка", 0},        {none, L"", CB_ERR},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(box.tell(CB_FINDSTRINGEXACT, row.after, row.text), row.found) << &row - rows;
    }
    EXPECT_EQ(FilledList({}).tell(CB_FINDSTRINGEXACT, none, L"a"), CB_ERR);
}

TEST(ComboBoxes, anItemKeepsItsData)
{
    const FilledList box({L"ByLayer", L"ByBlock"});
    EXPECT_EQ(box.tell(CB_GETITEMDATA, 0), 0);
    EXPECT_EQ(box.tell(CB_SETITEMDATA, 0, LPARAM(256)), 0);
    box.tell(CB_INSERTSTRING, 0, L"Color 30");
    EXPECT_EQ(box.tell(CB_GETITEMDATA, 0), 0);
    EXPECT_EQ(box.tell(CB_GETITEMDATA, 1), 256);
    EXPECT_EQ(box.tell(CB_GETITEMDATA, 3), CB_ERR);
    EXPECT_EQ(box.tell(CB_SETITEMDATA, 3, LPARAM(1)), CB_ERR);
    EXPECT_EQ(box.tell(CB_SETITEMDATA, none, LPARAM(1)), CB_ERR);
}

TEST(ComboBoxes, aPositionThatTheListDoesNotHaveHasNoText)
{
    const FilledList box({L"a"});
    wchar_t text[2] = L"?";
    EXPECT_EQ(box.item(1), L"none");
    EXPECT_EQ(box.item(none), L"none");
    EXPECT_EQ(box.tell(CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text)), CB_ERR);
    EXPECT_STREQ(text, L"?");
}

TEST(ComboBoxes, aListIsEmptyAfterReset)
{
    const FilledList box({L"a", L"b"});
    box.tell(CB_SETCURSEL, 1);
    EXPECT_EQ(box.tell(CB_RESETCONTENT), 0);
    EXPECT_EQ(box.tell(CB_GETCOUNT), 0);
    EXPECT_EQ(box.tell(CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(textOf(box.control(list)), L"");
}
