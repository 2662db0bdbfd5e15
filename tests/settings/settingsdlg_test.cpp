// The settings dialog as the user sees it: what it shows, what it refuses, what it stores.
#include <gtest/gtest.h>

#include <limits>
#include <numbers>

#include "host/database/packing.h"
#include "host/dialogs/modalloop.h"
#include "tests/settings/dialogrun.h"
#include "tests/settings/misleadingcolors.h"

namespace
{
using Lines = std::vector<std::string>;

const double notSet = std::numeric_limits<double>::max();
const std::string opened = "[dialog] Settings...\n";
const std::string openedRu = "[dialog] Настройки...\n";
const std::string ok = "[dialog closed] ok\n";
const std::string cancel = "[dialog closed] cancel\n";

std::string alert(const std::string& text)
{
    return "[alert] " + text + "\n";
}

std::string question(const std::string& direction, const std::string& answer)
{
    return "[message box] Attention: Large number of " + direction +
           " lines in grid. Proceed? (Yes/No) -> " + answer + "\n";
}

struct Text
{
    int control;
    const char* english;
    const char* russian;
};

// Kind, state and text of every control; a button with a picture shows its tooltip.
const Text texts[] = {
    {105, R"(group enabled - " Grid ")", R"(group enabled - " Сетка ")"},
    {106, R"(label enabled - "Vertical step:")", R"(label enabled - "Шаг вертикальный:")"},
    {107, R"(edit enabled - "100.0000")", nullptr},
    {108, R"(label enabled - "Horizontal step:")", R"(label enabled - "Шаг горизонтальный:")"},
    {109, R"(edit enabled - "100.0000")", nullptr},
    {110, R"(button enabled - "Set a vertical step")",
     R"(button enabled - "Укажите шаг по вертикали")"},
    {111, R"(button enabled - "Set a horizontal step")",
     R"(button enabled - "Укажите шаг по горизонтали")"},
    {112, R"(label enabled - "Color:")", R"(label enabled - "Цвет:")"},
    {113, R"(combo enabled selected=0 "Color 12")", nullptr},
    {114, R"(group enabled - " Appearance ")", R"(group enabled - " Отображение ")"},
    {115, R"(radio enabled checked "Continuous line")",
     R"(radio enabled checked "Сплошная линия")"},
    {116, R"(radio enabled unchecked "Cross mark")", R"(radio enabled unchecked "Крест")"},
    {117, R"(edit disabled - "50.0000")", nullptr},
    {118, R"(button disabled - "Set a cross size")",
     R"(button disabled - "Укажите размер крестика")"},
    {119, R"(group enabled - " Mode ")", R"(group enabled - " Режим ")"},
    {120, R"(radio enabled checked "WCS")", R"(radio enabled checked "МСК")"},
    {121, R"(radio enabled unchecked "View")", R"(radio enabled unchecked "Вид")"},
    {122, R"(line enabled - "")", nullptr},
    {123, R"(label enabled - "Grid base point:")", R"(label enabled - "Базовая точка сетки:")"},
    {124, R"(button enabled - "Set a base point")", R"(button enabled - "Укажите базовую точку")"},
    {125, R"x(label enabled - "(0.0000, 0.0000)")x", nullptr},
    {126, R"(check enabled unchecked "Erase boundary")",
     R"(check enabled unchecked "Удалить контур сетки")"},
    {127, R"(group enabled - "       Text ")", R"(group enabled - "       Текст ")"},
    {128, R"(label disabled - "Text style:")", R"(label disabled - "Стиль текста:")"},
    {129, R"(label disabled - "Text height:")", R"(label disabled - "Высота текста:")"},
    {130, R"(label disabled - "Accuracy:")", R"(label disabled - "Точность:")"},
    {131, R"(combo disabled selected=0 "Standard")", nullptr},
    {132, R"(edit disabled - "1.0000")", nullptr},
    {133, R"(combo disabled selected=0 "0")", nullptr},
    {134, R"(button disabled - "Set a text height")",
     R"(button disabled - "Укажите высоту текста")"},
    {135, R"(check disabled checked "X")", nullptr},
    {136, R"(check disabled checked "X")", nullptr},
    {137, R"(check disabled checked "Y")", nullptr},
    {138, R"(edit disabled - "")", nullptr},
    {139, R"(check disabled checked "X")", nullptr},
    {140, R"(check disabled checked "Y")", nullptr},
    {141, R"(check disabled checked "X")", nullptr},
    {142, R"(edit disabled - "")", nullptr},
    {143, R"(line enabled - "")", nullptr},
    {147, R"(line enabled - "")", nullptr},
    {148, R"(check disabled checked "Y")", nullptr},
    {149, R"(line enabled - "")", nullptr},
    {150, R"(check disabled checked "Y")", nullptr},
    {153, R"(line enabled - "")", nullptr},
    {154, R"(check enabled unchecked "")", nullptr},
    {1, R"(button enabled - "OK")", nullptr},
    {2, R"(button enabled - "Cancel")", R"(button enabled - "Отмена")"},
};

TEST(SettingsDialog, showsTheDefaultsInBothLanguages)
{
    const std::string english = DialogRun{}.with({"show", "^C"});
    const std::string russian = DialogRun{.locale = L"RU-ru"}.with({"show", "^C"});
    for (const Text& row : texts)
    {
        EXPECT_EQ(shown(english, row.control), row.english);
        EXPECT_EQ(shown(russian, row.control), row.russian ? row.russian : row.english);
    }
    EXPECT_TRUE(english.starts_with(opened)) << english;
    EXPECT_TRUE(russian.starts_with(openedRu)) << russian;
}

TEST(SettingsDialog, theListOfColorsHoldsTextsIsDrawnByItsOwnerAndKeepsItsOrder)
{
    DWORD style = 0;
    const host::DialogObserver observer(
        [&](HWND dialog) { style = DWORD(GetWindowLongW(GetDlgItem(dialog, 113), GWL_STYLE)); });
    DialogRun{}.with({"^C"});
    EXPECT_EQ(style & DWORD(CBS_HASSTRINGS | CBS_OWNERDRAWFIXED | CBS_SORT),
              DWORD(CBS_HASSTRINGS | CBS_OWNERDRAWFIXED));
}

// Writes down the banners of the two prefixes as soon as the dialog is set up.
class Bannered : public CSettingsDlg
{
public:
    explicit Bannered(const CString& locale) : CSettingsDlg(GridSettings(), -1, -1, locale, L"") {}
    std::wstring banners;

protected:
    BOOL OnInitDialog() override
    {
        const BOOL result = CSettingsDlg::OnInitDialog();
        for (const int edit : {138, 142})
        {
            wchar_t banner[32] = L"";
            SendDlgItemMessage(edit, EM_GETCUEBANNER, reinterpret_cast<WPARAM>(banner), 32);
            banners += banner;
        }
        return result;
    }
};

TEST(SettingsDialog, saysInBothLanguagesWhatGoesIntoAnEmptyPrefix)
{
    const auto banners = [](const wchar_t* locale)
    {
        std::wstring said;
        const auto show = [&]
        {
            Bannered dialog(locale);
            dialog.DoModal();
            said = dialog.banners;
        };
        support::Session().run(show, {"^C"});
        return said;
    };
    EXPECT_EQ(banners(L"en-US"), L"<X prefix><Y prefix>");
    EXPECT_EQ(banners(L"ru-RU"), L"<префикс X><префикс Y>");
}

struct Field
{
    const char* name;
    void (*change)(GridSettings&);
    int control;
    const char* shows;
};

const Field fields[] = {
    {"VertStep", [](GridSettings& s) { s.VertStep = 12.34567; }, 107,
     R"(edit enabled - "12.3457")"},
    {"HorStep", [](GridSettings& s) { s.HorStep = notSet; }, 109, R"(edit enabled - "")"},
    {"Color", [](GridSettings& s) { s.Color = 3; }, 113, R"(combo enabled selected=4 "Green")"},
    {"Color ByLayer", [](GridSettings& s) { s.Color = 256; }, 113,
     R"(combo enabled selected=0 "ByLayer")"},
    {"Color of no index", [](GridSettings& s) { s.Color = 999; }, 113,
     R"(combo enabled selected=-1 "")"},
    {"LookType", [](GridSettings& s) { s.LookType = 1; }, 116,
     R"(radio enabled checked "Cross mark")"},
    {"LookType crosses", [](GridSettings& s) { s.LookType = 1; }, 117,
     R"(edit enabled - "50.0000")"},
    {"LookType picks", [](GridSettings& s) { s.LookType = 1; }, 118,
     R"(button enabled - "Set a cross size")"},
    {"LookType of none", [](GridSettings& s) { s.LookType = 7; }, 115,
     R"(radio enabled checked "Continuous line")"},
    {"crossSize", [](GridSettings& s) { s.crossSize = 2; }, 117, R"(edit disabled - "2.0000")"},
    {"WCSBasePoint", [](GridSettings& s) { s.WCSBasePoint = 1; }, 121,
     R"(radio enabled checked "View")"},
    {"delCont", [](GridSettings& s) { s.delCont = 1; }, 126,
     R"(check enabled checked "Erase boundary")"},
    {"needText", [](GridSettings& s) { s.needText = 1; }, 154, R"(check enabled checked "")"},
    {"needText combo", [](GridSettings& s) { s.needText = 1; }, 131,
     R"(combo enabled selected=0 "Standard")"},
    {"needText accuracy", [](GridSettings& s) { s.needText = 1; }, 133,
     R"(combo enabled selected=0 "0")"},
    {"needText height", [](GridSettings& s) { s.needText = 1; }, 132, R"(edit enabled - "1.0000")"},
    {"needText pick", [](GridSettings& s) { s.needText = 1; }, 134,
     R"(button enabled - "Set a text height")"},
    {"needText label", [](GridSettings& s) { s.needText = 1; }, 129,
     R"(label enabled - "Text height:")"},
    {"needText boxes", [](GridSettings& s) { s.needText = 1; }, 140,
     R"(check enabled checked "Y")"},
    {"needText prefix", [](GridSettings& s) { s.needText = 1; }, 142, R"(edit enabled - "")"},
    {"heightText", [](GridSettings& s) { s.heightText = 2.5; }, 132, R"(edit disabled - "2.5000")"},
    {"iCountSigns", [](GridSettings& s) { s.iCountSigns = 4; }, 133,
     R"(combo disabled selected=4 "0.0000")"},
    {"iCountSigns 3", [](GridSettings& s) { s.iCountSigns = 3; }, 133,
     R"(combo disabled selected=3 "0.000")"},
    {"iCountSigns of none", [](GridSettings& s) { s.iCountSigns = 9; }, 133,
     R"(combo disabled selected=-1 "")"},
    {"bXTopScribe", [](GridSettings& s) { s.bXTopScribe = 0; }, 135,
     R"(check disabled unchecked "X")"},
    {"bYTopScribe", [](GridSettings& s) { s.bYTopScribe = 0; }, 137,
     R"(check disabled unchecked "Y")"},
    {"bXLeftScribe", [](GridSettings& s) { s.bXLeftScribe = 0; }, 139,
     R"(check disabled unchecked "X")"},
    {"bYLeftScribe", [](GridSettings& s) { s.bYLeftScribe = 0; }, 150,
     R"(check disabled unchecked "Y")"},
    {"bXRightScribe", [](GridSettings& s) { s.bXRightScribe = 0; }, 141,
     R"(check disabled unchecked "X")"},
    {"bYRightScribe", [](GridSettings& s) { s.bYRightScribe = 0; }, 148,
     R"(check disabled unchecked "Y")"},
    {"bXBottomScribe", [](GridSettings& s) { s.bXBottomScribe = 0; }, 136,
     R"(check disabled unchecked "X")"},
    {"bYBottomScribe", [](GridSettings& s) { s.bYBottomScribe = 0; }, 140,
     R"(check disabled unchecked "Y")"},
    {"textXScribe", [](GridSettings& s) { s.textXScribe = L"x = "; }, 138,
     R"(edit disabled - "x = ")"},
    {"textYScribe", [](GridSettings& s) { s.textYScribe = L"y = "; }, 142,
     R"(edit disabled - "y = ")"},
    {"textStyleName", [](GridSettings& s) { s.textStyleName = L""; }, 131,
     R"(combo disabled selected=0 "Standard")"},
    {"basePoint", [](GridSettings& s) { s.basePoint.set(1.5, -2, 9); }, 125,
     R"x(label enabled - "(1.5000, -2.0000)")x"},
};

TEST(SettingsDialog, showsEachOption)
{
    for (const Field& row : fields)
    {
        DialogRun run;
        row.change(run.settings);
        EXPECT_EQ(shown(run.with({"show", "^C"}), row.control), row.shows) << row.name;
    }
}

TEST(SettingsDialog, selectsTheColorWhateverTheListAnswersWhenItIsAdded)
{
    struct Row
    {
        int color;
        const char* shows;
    };
    const Row rows[] = {
        {12, R"(combo enabled selected=0 "Color 12")"},
        {3, R"(combo enabled selected=4 "Green")"},  // listed from the start
        {0, R"(combo enabled selected=1 "ByBlock")"},
        {256, R"(combo enabled selected=0 "ByLayer")"},
        {999, R"(combo enabled selected=-1 "")"},
        {-1, R"(combo enabled selected=-1 "")"},
    };
    for (const int answer : {-1, 0, 5, 1000})
    {
        const MisleadingColors misleading(answer);
        for (const Row& row : rows)
        {
            DialogRun run;
            run.settings.Color = row.color;
            EXPECT_EQ(shown(run.with({"show", "click 1"}), 113), row.shows) << answer;
            EXPECT_EQ(run.settings.Color, row.color) << answer;
        }
    }
}

bool same(const GridSettings& a, const GridSettings& b)
{
    return a.Color == b.Color && a.VertStep == b.VertStep && a.HorStep == b.HorStep &&
           a.LookType == b.LookType && a.crossSize == b.crossSize &&
           a.WCSBasePoint == b.WCSBasePoint && a.delCont == b.delCont &&
           a.heightText == b.heightText && a.iCountSigns == b.iCountSigns &&
           a.needText == b.needText && a.bXTopScribe == b.bXTopScribe &&
           a.bXBottomScribe == b.bXBottomScribe && a.bXLeftScribe == b.bXLeftScribe &&
           a.bXRightScribe == b.bXRightScribe && a.bYTopScribe == b.bYTopScribe &&
           a.bYBottomScribe == b.bYBottomScribe && a.bYLeftScribe == b.bYLeftScribe &&
           a.bYRightScribe == b.bYRightScribe && a.textXScribe == b.textXScribe &&
           a.textYScribe == b.textYScribe && a.textStyleName == b.textStyleName &&
           a.basePoint.x == b.basePoint.x && a.basePoint.y == b.basePoint.y &&
           a.basePoint.z == b.basePoint.z;
}

struct Edit
{
    const char* lines;  // see typed()
    void (*change)(GridSettings&);
};

const Edit edits[] = {
    {"set 107 25", [](GridSettings& s) { s.VertStep = 25; }},
    {"set 109 2,5", [](GridSettings& s) { s.HorStep = 2.5; }},  // decimal comma
    {"color 113 7", [](GridSettings& s) { s.Color = 7; }},
    {"color 113 42", [](GridSettings& s) { s.Color = 42; }},
    {"select 113 ByBlock", [](GridSettings& s) { s.Color = 0; }},
    {"click 116 | set 117 7",
     [](GridSettings& s)
     {
         s.LookType = 1;
         s.crossSize = 7;
     }},
    {"click 116 | click 115", [](GridSettings&) {}},
    {"click 121", [](GridSettings& s) { s.WCSBasePoint = 1; }},
    {"check 126 on", [](GridSettings& s) { s.delCont = 1; }},
    {"click 154 | set 132 3",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.heightText = 3;
     }},
    {"click 154 | select 133 0.00",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.iCountSigns = 2;
     }},
    {"click 154 | click 135",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.bXTopScribe = 0;
     }},
    {"click 154 | click 137",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.bYTopScribe = 0;
     }},
    {"click 154 | click 139",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.bXLeftScribe = 0;
     }},
    {"click 154 | click 150",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.bYLeftScribe = 0;
     }},
    {"click 154 | click 141",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.bXRightScribe = 0;
     }},
    {"click 154 | click 148",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.bYRightScribe = 0;
     }},
    {"click 154 | click 136",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.bXBottomScribe = 0;
     }},
    {"click 154 | click 140",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.bYBottomScribe = 0;
     }},
    {"click 154 | set 138  X: ",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.textXScribe = L" X: ";
     }},
    {"click 154 | set 142 Север ",
     [](GridSettings& s)
     {
         s.needText = 1;
         s.textYScribe = L"Север ";
     }},
    {"click 154 | click 154", [](GridSettings&) {}},
};

TEST(SettingsDialog, storesWhatWasChangedOnOkAndNothingElse)
{
    for (const Edit& row : edits)
    {
        for (const char* last : {"click 1", ""})  // Enter presses OK
        {
            DialogRun run;
            GridSettings expected = run.settings;
            row.change(expected);
            Lines lines = typed(row.lines);
            lines.push_back(last);
            run.with(lines);
            EXPECT_EQ(run.result, IDOK);
            EXPECT_TRUE(same(run.settings, expected)) << row.lines;
        }
    }
}

TEST(SettingsDialog, storesTheTextStyleThatWasChosen)
{
    support::Session session;
    host::DatabaseCore& core = host::coreOf(session.drawing());
    core.addLoadedRecord<AcDbTextStyleTableRecord>(core.roots()[host::Root::textStyleTable],
                                                   L"Slanted", core.handles().take());
    DialogRun run;
    run.with(session, {"check 154 on", "select 131 Slanted", "click 1"});
    EXPECT_EQ(run.settings.textStyleName, L"Slanted");
}

TEST(SettingsDialog, leavesEverythingAsItWasUnlessOkIsPressed)
{
    for (const Edit& row : edits)
    {
        for (const char* last : {"click 2", "close", "^C"})
        {
            DialogRun run;
            Lines lines = typed(row.lines);
            lines.push_back(last);
            EXPECT_TRUE(run.with(lines).ends_with(cancel));
            EXPECT_EQ(run.result, IDCANCEL);
            EXPECT_TRUE(same(run.settings, GridSettings())) << row.lines;
        }
    }
}

TEST(SettingsDialog, keepsWhatItsListsCannotShow)
{
    DialogRun run;
    run.settings.Color = 999;
    run.settings.iCountSigns = 9;
    run.settings.textStyleName = L"gone";
    const GridSettings before = run.settings;
    run.with({"click 1"});
    EXPECT_TRUE(same(run.settings, before));
}

struct Refusal
{
    const char* why;
    const char* lines;  // before the last OK
    const char* said;
    const char* saidRu;
};

const char* const noVert = "Vertical step is not set";
const char* const noVertRu = "Шаг по вертикали не указан";
const char* const noHor = "Horizontal step is not set";
const char* const noHorRu = "Шаг по горизонтали не указан";
const char* const noCross = "Size of the cross mark is not set";
const char* const noCrossRu = "Не указан размер креста";
const char* const noHeight = "Text height is not set";
const char* const noHeightRu = "Не указана высота текста";

const Refusal refusals[] = {
    {"empty", "set 107 ", noVert, noVertRu},
    {"zero", "set 107 0", noVert, noVertRu},
    {"negative", "set 107 -5", noVert, noVertRu},
    {"a word", "set 107 ten", noVert, noVertRu},
    {"an exponent", "set 107 2.5e3", noVert, noVertRu},
    {"a blank in front", "set 107  25", noVert, noVertRu},
    {"the vertical step comes first", "set 107  | set 109  | click 116 | set 117 ", noVert,
     noVertRu},
    {"empty horizontal", "set 109 ", noHor, noHorRu},
    {"zero horizontal", "set 109 0.0", noHor, noHorRu},
    {"then the horizontal step", "set 109  | click 116 | set 117 ", noHor, noHorRu},
    {"no cross", "click 116 | set 117 ", noCross, noCrossRu},
    {"negative cross", "click 116 | set 117 -1", noCross, noCrossRu},
    {"then the cross", "click 116 | set 117 0 | click 154 | set 132 ", noCross, noCrossRu},
    {"no height", "click 154 | set 132 ", noHeight, noHeightRu},
    {"zero height", "click 154 | set 132 0", noHeight, noHeightRu},
    {"labels off again", "click 154 | set 132  | click 154", noHeight, noHeightRu},
};

TEST(SettingsDialog, refusesOkInItsOrderAndStaysOpen)
{
    for (const Refusal& row : refusals)
    {
        Lines lines = typed(row.lines);
        lines.insert(lines.end(), {"click 1", "^C"});
        DialogRun run;
        EXPECT_EQ(run.with(lines), opened + alert(row.said) + cancel) << row.why;
        EXPECT_TRUE(same(run.settings, GridSettings())) << row.why;
        EXPECT_EQ(DialogRun{.locale = L"ru-RU"}.with(lines), openedRu + alert(row.saidRu) + cancel)
            << row.why;
    }
}

TEST(SettingsDialog, checksNoCrossSizeWhileLinesAreDrawn)
{
    DialogRun run;
    run.settings.crossSize = notSet;
    EXPECT_EQ(run.with({"click 1"}), opened + ok);
    EXPECT_EQ(run.settings.crossSize, notSet);
}

TEST(SettingsDialog, refusesASettingsFileWithoutTextHeightThoughLabelsAreOff)
{
    DialogRun run;
    run.settings.heightText = notSet;
    EXPECT_EQ(run.with({"click 1", "^C"}), opened + alert(noHeight) + cancel);
}

struct Large
{
    double width, height;
    const char* lines;
    const char* said;  // see saying()
};

const Large larges[] = {
    {-1, -1, "set 107 1 | set 109 1 | click 1", "ok"},        // sizes not known
    {1000, 1000, "set 107 20 | set 109 20 | click 1", "ok"},  // exactly 50
    {1000, 1000, "set 107 19 | click 1 | yes", "vertical:yes | ok"},
    {0.5, 0.5, "set 107 0.009 | set 109 0.1 | click 1 | yes", "vertical:yes | ok"},
    {1000, 1000, "set 109 19 | click 1 | yes", "horizontal:yes | ok"},
    {100, 1000, "set 107 19 | set 109 19 | click 1 | yes",
     "vertical:yes | ok"},  // height and vertical
    {1000, 100, "set 107 19 | set 109 19 | click 1 | yes", "horizontal:yes | ok"},
    {1000, 1000, "set 107 19 | set 109 19 | click 1 | yes | yes",
     "vertical:yes | horizontal:yes | ok"},
    {1000, 1000, "set 107 19 | click 1 | no | ^C", "vertical:no | cancel"},
    {1000, 1000, "set 107 19 | click 1 | no | click 1 | yes",
     "vertical:no | vertical:yes | ok"},  // the question is asked again after a No
    {1000, 1000, "set 107 19 | set 109  | click 1 | yes | set 109 100 | click 1",
     "vertical:yes | alert | ok"},  // a Yes is
    {1000, 1000, "set 107 19 | set 109 19 | click 1 | yes | no | click 1 | yes",
     "vertical:yes | horizontal:no | horizontal:yes | ok"},
};

std::string saying(const char* events)
{
    std::string said = opened;
    for (const std::string& event : typed(events))
    {
        const std::size_t colon = event.find(':');
        said += event == "ok"       ? ok
                : event == "cancel" ? cancel
                : event == "alert"  ? alert(noHor)
                                    : question(event.substr(0, colon), event.substr(colon + 1));
    }
    return said;
}

TEST(SettingsDialog, asksOnOkAboutMoreThanFiftyStepsOnceForEachDirection)
{
    for (const Large& row : larges)
    {
        DialogRun run{.gridWidth = row.width, .gridHeight = row.height};
        EXPECT_EQ(run.with(typed(row.lines)), saying(row.said)) << row.lines;
    }
}

TEST(SettingsDialog, asksInRussian)
{
    DialogRun run{.gridWidth = 1000, .gridHeight = 1000, .locale = L"ru-RU"};
    EXPECT_EQ(run.with({"set 107 19", "set 109 19", "click 1", "yes", "yes"}),
              openedRu +
                  "[message box] Внимание: Большое количество вертикальных линий в сетке. "
                  "Продолжить? (Yes/No) -> yes\n"
                  "[message box] Внимание: Большое количество горизонтальных линий в сетке. "
                  "Продолжить? (Yes/No) -> yes\n" +
                  ok);
}

TEST(SettingsDialog, listsTheTextStylesOfTheDrawing)
{
    support::Session session(
        std::move(host::openDrawing(TESTS_DIR "/../examples/site.dxf")->database));
    DialogRun run;
    run.settings.textStyleName = L"гост 2.304";
    const std::string said =
        run.with(session, {"click 154", "show", "select 131 Standard", "click 1"});
    EXPECT_TRUE(shown(said, 131).ends_with("\"ГОСТ 2.304\"")) << shown(said, 131);
    EXPECT_STREQ(run.settings.textStyleName, L"Standard");
}
}  // namespace
