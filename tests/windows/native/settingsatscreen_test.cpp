// The settings dialog on the screen, worked with the mouse and the keyboard.
#include <gtest/gtest.h>

#include "commctrl.h"
#include "host/dialogs/wnd.h"
#include "host/editor/editor.h"
#include "settings/settingsdlg.h"
#include "tests/settings/taborder.h"
#include "tests/support/session.h"
#include "tests/windows/native/person.h"

namespace
{
using Kind = host::Answer::Kind;
using Kinds = std::vector<Kind>;

const host::Answer cancel = {.kind = Kind::cancel};

struct Shown
{
    INT_PTR result;
    GridSettings settings;
    std::string said;
    Kinds answers;
};

Shown shown(const Person::Act& act, const GridSettings& settings = {}, LPCWSTR locale = L"en-US")
{
    const support::Session session;
    CSettingsDlg dialog(settings, -1, -1, locale, L"");
    Person person(act);
    host::Editor editor(person, false);
    const INT_PTR result = dialog.DoModal();
    return {result, dialog.settings(), person.transcript, person.answers};
}

// Works the dialog, and cancels it at the console if that has not closed it.
Person::Act atTheDialog(const std::function<void(HWND dialog)>& work)
{
    return [=](const host::Question& question)
    {
        const HWND dialog = dialogOf(question);
        comesTrue([&] { return focusAt(dialog) != nullptr; });
        work(dialog);
        return cancel;
    };
}

// Works the dialog until it closes.
Person::Act untilItCloses(const std::function<void(HWND dialog)>& work)
{
    return atTheDialog(
        [=](HWND dialog)
        {
            work(dialog);
            comesTrue([&] { return !IsWindow(dialog); });
        });
}

bool isOn(HWND dialog, int button)
{
    return SendMessageW(GetDlgItem(dialog, button), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

int focusedId(HWND dialog)
{
    return GetDlgCtrlID(focusAt(dialog));
}

// Presses a key and returns the id of the control that then has the focus.
int idAfter(HWND dialog, void (*pressed)(WORD), WORD key)
{
    const HWND before = focusAt(dialog);
    pressed(key);
    comesTrue([&] { return focusAt(dialog) != before && focusAt(dialog) != nullptr; });
    return focusedId(dialog);
}

TEST(AtTheScreen, tabGoesThroughTheControlsInTheSameOrderAsHeadless)
{
    for (const TabOrder& order : tabOrders)
    {
        TabStops stops;
        int first = 0;
        shown(atTheDialog(
                  [&](HWND dialog)
                  {
                      first = focusedId(dialog);
                      for (int id = first; stops.size() < order.stops.size();)
                      {
                          stops.push_back(id);
                          id = idAfter(dialog, press, VK_TAB);
                      }
                      first = focusedId(dialog);
                  }),
              order.settings());
        EXPECT_EQ(stops, order.stops);
        EXPECT_EQ(first, order.stops.front()) << "the round does not close";
    }
}

TEST(AtTheScreen, tabWithShiftGoesBack)
{
    TabStops stops;
    shown(atTheDialog(
        [&](HWND dialog)
        {
            while (stops.size() < stopsAtTheDefaults.size())
            {
                stops.insert(stops.begin(), idAfter(dialog, pressWithShift, VK_TAB));
            }
        }));
    EXPECT_EQ(stops, stopsAtTheDefaults);
}

TEST(AtTheScreen, anArrowKeyTurnsOnTheNextOfAGroup)
{
    bool sizeIsEnabled = false;
    const Shown after = shown(untilItCloses(
        [&](HWND dialog)
        {
            clickOn(GetDlgItem(dialog, IDC_LINES));
            comesTrue([&] { return focusedId(dialog) == IDC_LINES; });
            idAfter(dialog, press, VK_DOWN);
            const HWND size = GetDlgItem(dialog, IDC_CROSS_SIZE);
            sizeIsEnabled = comesTrue([&] { return IsWindowEnabled(size) != FALSE; });
            press(VK_RETURN);
        }));
    EXPECT_TRUE(sizeIsEnabled);
    EXPECT_EQ(after.result, IDOK);
    EXPECT_EQ(after.settings.LookType, 1);
}

TEST(AtTheScreen, enterPressesOkAndEscCancel)
{
    struct Way
    {
        WORD key;
        INT_PTR result;
    };
    for (const Way& way : {Way{VK_RETURN, IDOK}, Way{VK_ESCAPE, IDCANCEL}})
    {
        const Shown after = shown(untilItCloses([&](HWND) { press(way.key); }));
        EXPECT_EQ(after.result, way.result);
        EXPECT_EQ(after.answers, Kinds{Kind::withdrawn});
        EXPECT_TRUE(after.said.ends_with(way.result == IDOK ? "[dialog closed] ok\n"
                                                            : "[dialog closed] cancel\n"))
            << after.said;
    }
}

TEST(AtTheScreen, whatIsTypedIntoAnEditIsTaken)
{
    const Shown after = shown(untilItCloses(
        [](HWND)
        {
            // The text is marked when the edit gets the keyboard: what is typed replaces it.
            for (const int key : {int('2'), int('5'), VK_RETURN})
            {
                press(WORD(key));
            }
        }));
    EXPECT_EQ(after.result, IDOK);
    EXPECT_EQ(after.settings.VertStep, 25);
}

TEST(AtTheScreen, clicksDoWhatTheLinesOfAScriptDo)
{
    const Shown after = shown(untilItCloses(
        [](HWND dialog)
        {
            for (const int id : {IDC_CROSSES, IDC_NEED_TEXT, IDC_ERASE_BOUNDARY})
            {
                clickOn(GetDlgItem(dialog, id));
                comesTrue([&] { return isOn(dialog, id); });
            }
            clickOn(GetDlgItem(dialog, IDC_X_TOP));
            comesTrue([&] { return !isOn(dialog, IDC_X_TOP); });
            clickOn(GetDlgItem(dialog, IDOK));
        }));
    EXPECT_EQ(after.result, IDOK);
    EXPECT_EQ(after.settings.LookType, 1);
    EXPECT_EQ(after.settings.needText, 1);
    EXPECT_EQ(after.settings.delCont, 1);
    EXPECT_EQ(after.settings.bXTopScribe, 0);
    EXPECT_EQ(after.settings.bYTopScribe, 1);
    EXPECT_EQ(after.answers, Kinds{Kind::withdrawn});
}

TEST(AtTheScreen, aClickOnWhatIsDisabledDoesNothing)
{
    bool turnedOff = false;
    shown(atTheDialog(
        [&](HWND dialog)
        {
            clickOn(GetDlgItem(dialog, IDC_X_TOP));
            clickOn(GetDlgItem(dialog, IDC_NEED_TEXT));
            comesTrue([&] { return isOn(dialog, IDC_NEED_TEXT); });
            turnedOff = !isOn(dialog, IDC_X_TOP);
        }));
    EXPECT_FALSE(turnedOff);
}

// A list that is open has the mouse; the console waits on.
TEST(AtTheScreen, anItemIsChosenWithTheKeyboard)
{
    const Shown after = shown(untilItCloses(
        [](HWND dialog)
        {
            const HWND list = GetDlgItem(dialog, IDC_ACCURACY);
            clickOn(GetDlgItem(dialog, IDC_NEED_TEXT));
            comesTrue([&] { return IsWindowEnabled(list) != FALSE; });
            clickOn(list);
            comesTrue([&] { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != FALSE; });
            for (const int key : {VK_DOWN, VK_DOWN, VK_RETURN})
            {
                press(WORD(key));
            }
            comesTrue([&] { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) == FALSE; });
            press(VK_RETURN);
        }));
    EXPECT_EQ(after.result, IDOK);
    EXPECT_EQ(after.settings.iCountSigns, GridSettings().iCountSigns + 2);
}

// The line that the console then brings belongs to the next question.
TEST(AtTheScreen, aClickWithdrawsTheQuestionAtTheConsole)
{
    const support::Session session;
    CSettingsDlg dialog(GridSettings(), -1, -1, L"en-US", L"");
    const auto clickCancelAndTypeLate = [](const host::Question& question) -> host::Answer
    {
        const HWND window = dialogOf(question);
        clickOn(GetDlgItem(window, IDCANCEL));
        const bool isGone = comesTrue([&] { return !IsWindow(window); });
        return {.kind = Kind::line, .text = isGone ? L"late" : L"close"};
    };
    Person person(clickCancelAndTypeLate);
    host::Editor editor(person, false);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(editor.ask({.prompt = L"Next: "}).text, L"late");
    EXPECT_EQ(person.answers, (Kinds{Kind::withdrawn, Kind::line}));
}

HWND boxOver(HWND dialog)
{
    const HWND box = GetLastActivePopup(dialog);
    return box != dialog && IsWindowVisible(box) ? box : nullptr;
}

// Whoever clicks OK looks at the dialog and not at the console.
TEST(AtTheScreen, aRefusedValueShowsABoxOverTheDialogAndLeadsToTheEdit)
{
    bool isBoxShown = false;
    bool isEditReached = false;
    std::wstring text;
    const Shown after = shown(atTheDialog(
        [&](HWND dialog)
        {
            SetWindowTextW(GetDlgItem(dialog, IDC_HOR_STEP), L"0");
            clickOn(GetDlgItem(dialog, IDOK));
            isBoxShown = comesTrue([&] { return boxOver(dialog) != nullptr; });
            wchar_t shownText[80] = L"";
            GetDlgItemTextW(boxOver(dialog), 0xFFFF, shownText, 80);
            text = shownText;
            press(VK_RETURN);
            comesTrue([&] { return boxOver(dialog) == nullptr; });
            isEditReached = comesTrue([&] { return focusedId(dialog) == IDC_HOR_STEP; });
        }));
    EXPECT_TRUE(isBoxShown);
    EXPECT_EQ(text, L"Horizontal step is not set");
    EXPECT_TRUE(isEditReached);
    EXPECT_EQ(after.result, IDCANCEL);
}

// The pick is typed where the console waited for a line to the dialog; then the dialog asks again.
TEST(AtTheScreen, aPickButtonThatIsClickedAsksAtTheConsole)
{
    const support::Session session;
    CSettingsDlg dialog(GridSettings(), -1, -1, L"en-US", L"");
    const Person* clicker = nullptr;
    HWND window = nullptr;
    const auto clickPickThenOk = [&](const host::Question& question) -> host::Answer
    {
        if (window == nullptr)
        {
            window = dialogOf(question);
            clickOn(GetDlgItem(window, IDC_PICK_VERT_STEP));
            const bool stepsAside = comesTrue([&] { return !IsWindowVisible(window); });
            return {.kind = Kind::line, .text = stepsAside ? L"42" : L"close"};
        }
        comesTrue([&] { return clicker->asked == 3; });
        clickOn(GetDlgItem(window, IDOK));
        comesTrue([&] { return !IsWindow(window); });
        return cancel;
    };
    Person person(clickPickThenOk);
    clicker = &person;
    host::Editor editor(person, false);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.settings().VertStep, 42);
    EXPECT_EQ(person.answers, (Kinds{Kind::line, Kind::withdrawn, Kind::withdrawn}));
    const std::string again =
        "<100.0000>: 42\n   105  --- Grid ---\n   107  Vertical step: [42.0000]";
    EXPECT_NE(person.transcript.find(again), std::string::npos) << person.transcript;
}

const wchar_t* const attention = L"Attention";

// Returns the number of boxes with the text's caption, which no other window on the screen has.
int openBoxes()
{
    int count = 0;
    for (HWND box = nullptr; (box = FindWindowExW(nullptr, box, nullptr, attention)) != nullptr;)
    {
        count += IsWindowVisible(box) ? 1 : 0;
    }
    return count;
}

// A thousand lines each way in the rectangle: OK asks about both. Works the dialog until it closes.
Shown shownWithManyLines(const std::function<void(HWND dialog)>& work)
{
    const support::Session session;
    GridSettings settings;
    settings.HorStep = settings.VertStep = 1;
    CSettingsDlg dialog(settings, 1000, 1000, L"en-US", L"");
    Person person(untilItCloses(work));
    host::Editor editor(person, false);
    const INT_PTR result = dialog.DoModal();
    return {result, dialog.settings(), person.transcript, person.answers};
}

// Presses OK and moves the box that appears to a place where it hides no part of the dialog.
HWND boxAfter(const std::function<void()>& ok)
{
    ok();
    comesTrue([] { return openBoxes() == 1; });
    const HWND box = FindWindowW(nullptr, attention);
    SetWindowPos(box, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    comesTrue([&] { return focusAt(box) != nullptr; });
    return box;
}

void answer(HWND box, int button)
{
    clickOn(GetDlgItem(box, button));
    comesTrue([&] { return !IsWindow(box); });
}

TEST(AtTheScreen, aDialogUnderAQuestionDoesNothing)
{
    int boxes = 0;
    bool changed = true;
    bool stays = false;
    const Shown after = shownWithManyLines(
        [&](HWND dialog)
        {
            const HWND ok = GetDlgItem(dialog, IDOK);
            const HWND vertical = boxAfter([&] { clickOn(ok); });
            for (const int id : {IDOK, int(IDC_ERASE_BOUNDARY), int(IDC_PICK_VERT_STEP), IDCANCEL})
            {
                clickOn(GetDlgItem(dialog, id));
                std::this_thread::sleep_for(std::chrono::milliseconds(100));
            }
            clickOn(GetDlgItem(dialog, IDC_HOR_STEP));
            press('7');
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            boxes = openBoxes();
            changed = isOn(dialog, IDC_ERASE_BOUNDARY);
            stays = IsWindowVisible(dialog) != FALSE;
            answer(vertical, IDYES);
            comesTrue([] { return openBoxes() == 1; });
            answer(FindWindowW(nullptr, attention), IDYES);
        });
    EXPECT_EQ(boxes, 1);
    EXPECT_FALSE(changed);
    EXPECT_TRUE(stays);
    EXPECT_EQ(after.result, IDOK);
    EXPECT_EQ(after.settings.HorStep, 1);
}

TEST(AtTheScreen, aDialogHasTheKeyboardWhereItWasWhenAQuestionIsAnswered)
{
    int focused = 0;
    bool isInFront = false;
    const Shown after = shownWithManyLines(
        [&](HWND dialog)
        {
            clickOn(GetDlgItem(dialog, IDC_HOR_STEP));
            comesTrue([&] { return focusedId(dialog) == IDC_HOR_STEP; });
            answer(boxAfter([] { press(VK_RETURN); }), IDNO);
            comesTrue([&] { return focusedId(dialog) == IDC_HOR_STEP; });
            focused = focusedId(dialog);
            isInFront = GetForegroundWindow() == dialog;
            press(VK_ESCAPE);
        });
    EXPECT_EQ(focused, IDC_HOR_STEP);
    EXPECT_TRUE(isInFront);
    EXPECT_EQ(after.result, IDCANCEL);
}

struct Tooltip
{
    int button;
    const wchar_t* english;
    const wchar_t* russian;
};

const Tooltip tooltips[] = {
    {IDC_PICK_VERT_STEP, L"Set a vertical step", L"Укажите шаг по вертикали"},
    {IDC_PICK_HOR_STEP, L"Set a horizontal step", L"Укажите шаг по горизонтали"},
    {IDC_PICK_CROSS_SIZE, L"Set a cross size", L"Укажите размер крестика"},
    {IDC_PICK_BASE_POINT, L"Set a base point", L"Укажите базовую точку"},
    {IDC_PICK_TEXT_HEIGHT, L"Set a text height", L"Укажите высоту текста"},
};

HWND tooltipsOf(HWND dialog)
{
    HWND window = nullptr;
    do
    {
        window = FindWindowExW(nullptr, window, TOOLTIPS_CLASSW, nullptr);
    } while (window != nullptr && GetWindow(window, GW_OWNER) != dialog);
    return window;
}

// On the dialog's own thread.
std::wstring tooltipOf(HWND dialog, int button)
{
    wchar_t text[80] = L"";
    TTTOOLINFOW tool = {};
    tool.cbSize = sizeof tool;
    tool.hwnd = dialog;
    tool.uId = reinterpret_cast<UINT_PTR>(GetDlgItem(dialog, button));
    tool.lpszText = text;
    SendMessageW(tooltipsOf(dialog), TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
    return text;
}

TEST(AtTheScreen, eachPickButtonHasItsTooltipInBothLanguages)
{
    for (const bool isRussian : {false, true})
    {
        std::vector<std::wstring> texts;
        shown(atTheDialog(
                  [&](HWND dialog)
                  {
                      for (const Tooltip& tooltip : tooltips)
                      {
                          texts.push_back(tooltipOf(dialog, tooltip.button));
                      }
                  }),
              {}, isRussian ? L"ru-RU" : L"en-US");
        for (std::size_t i = 0; i < std::size(tooltips); ++i)
        {
            EXPECT_EQ(texts.at(i), isRussian ? tooltips[i].russian : tooltips[i].english);
        }
    }
}

TEST(AtTheScreen, aTooltipShowsUnderTheMouseThatRests)
{
    bool isShownBefore = true;
    bool isShown = false;
    shown(atTheDialog(
        [&](HWND dialog)
        {
            moveTo(GetDlgItem(dialog, IDC_COLOR_LABEL));
            isShownBefore = IsWindowVisible(tooltipsOf(dialog));
            moveTo(GetDlgItem(dialog, IDC_PICK_VERT_STEP));
            isShown = comesTrue([&] { return IsWindowVisible(tooltipsOf(dialog)) != FALSE; });
        }));
    EXPECT_FALSE(isShownBefore);
    EXPECT_TRUE(isShown);
}
}  // namespace
