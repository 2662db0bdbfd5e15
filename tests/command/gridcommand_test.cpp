#include "command/gridcommand.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <span>

#include "host/database/packing.h"
#include "host/database/undo.h"
#include "host/database/drawing.h"
#include "tests/command/scriptededitor.h"

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;

const std::vector<std::wstring> givenBack = {L"UCS back", L"UCSICON=3", L"UCSFOLLOW=1"};

const std::vector<std::wstring> borrowed = {L"UCSICON=0", L"UCSFOLLOW=0", L"UCS set"};

const std::wstring askedFirst = L"point [128 S] \nSpecify first corner point [Settings]: ";
const std::wstring askedOther = L"corner from 0.000000,0.000000 [] \nSpecify other corner point: ";
const std::wstring askedToAccept = L"keyword [128 A S] \n[<Apply>/Settings]: ";

template <class... Parts>
std::vector<std::wstring> together(const Parts&... parts)
{
    std::vector<std::wstring> all;
    (all.insert(all.end(), parts.begin(), parts.end()), ...);
    return all;
}

std::vector<std::wstring> times(int count, const std::wstring& call)
{
    return std::vector<std::wstring>(count, call);
}

ScriptedAnswer looking(ScriptedAnswer answer, std::function<void()> look)
{
    answer.look = std::move(look);
    return answer;
}

const ScriptedAnswer enter = code(RTNONE);
const ScriptedAnswer esc = code(RTCAN);

TEST(GridCommand, asksForTwoCornersAndForAcceptance)
{
    ScriptedEditor editor;
    editor.run({point(0, 0), point(300, 200), enter});
    EXPECT_EQ(editor.log, together(borrowed, times(1, askedFirst), times(1, askedOther),
                                   times(1, askedToAccept), givenBack));
    EXPECT_TRUE(editor.formerUcs.empty());
}

TEST(GridCommand, speaksRussianToTheRussianProductAlone)
{
    struct Row
    {
        LCID locale;
        bool russian;
    };
    for (const Row row : {Row{0x0419, true}, {0x0409, false}, {0x0407, false}, {0xFFFE, false}})
    {
        ScriptedEditor editor;
        editor.locale = row.locale;
        editor.settings.write("[GRID]\nLookType=1\ncrossSize=2.5\nHorStep=3\nVertStep=4\n");
        editor.run({point(0, 0), point(3, 2), enter});
        if (!row.russian)
        {
            EXPECT_EQ(editor.said,
                      L"\n*** horizontal dist: 3.00; vertical dist: 4.00; color: 0; appearance: "
                      L"cross mark, 2.50 drawing units ***");
            EXPECT_THAT(editor.log, testing::Contains(askedToAccept));
            continue;
        }
        EXPECT_EQ(editor.said,
                  L"\n*** горизонтальный шаг: 3.00; вертикальный шаг: 4.00; цвет: 0; внешний вид: "
                  L"крест, 2.50 ед. чертежа ***");
        EXPECT_EQ(editor.log[3], L"point [128 Н] \nУкажите точку первого угла [Настройки]: ");
        EXPECT_EQ(editor.log[4],
                  L"corner from 0.000000,0.000000 [] \nУкажите точку второго угла: ");
        EXPECT_EQ(editor.log[5], L"keyword [128 П Н] \n[<Принять>/Настройки]: ");
    }
}

TEST(GridCommand, tellsTheSettingsAsLoaded)
{
    struct Row
    {
        const char* file;
        std::wstring said;
    };
    const std::wstring largest = L"1797693134862315";
    const Row rows[] = {
        {"",
         L"\n*** horizontal dist: 100.00; vertical dist: 100.00; color: 12; appearance: "
         L"continuous line ***"},
        {"[GRID]\nHorStep=1,005\nVertStep=-2\nColor=-3\nLookType=2\n",  // only 1 means crosses
         L"\n*** horizontal dist: 1.00; vertical dist: -2.00; color: -3; appearance: continuous "
         L"line ***"},
        {"[GRID]\nHorStep=\nVertStep=x\nLookType=1\ncrossSize=\n",
         L"\n*** horizontal dist: " + largest},
    };
    for (const Row& row : rows)
    {
        ScriptedEditor editor;
        editor.settings.write(row.file);
        editor.run({esc});
        EXPECT_EQ(editor.said.substr(0, row.said.size()), row.said);
        EXPECT_THAT(editor.said, testing::EndsWith(L" ***"));
    }
}

// The summary appears while the frame is still the user's own, so that no part of it is shown
// beside an unfamiliar icon or view.
TEST(GridCommand, tellsTheSettingsBeforeItBorrowsTheFrame)
{
    ScriptedEditor editor;
    int told = 0;
    editor.hear = [&](const std::wstring& said)
    {
        ++told;
        EXPECT_THAT(said, testing::StartsWith(L"\n*** horizontal dist"));
        EXPECT_THAT(editor.log, testing::IsEmpty());
    };
    editor.run({esc});
    EXPECT_EQ(told, 1);
}

TEST(GridCommand, asksForTheFirstCornerUntilItGetsOneOrIsStopped)
{
    struct Row
    {
        ScriptedAnswer answer;
        bool asksAgain;
        bool opensDialog = false;
    };
    const Row rows[] = {
        {enter, true},
        {text(RTKWORD, L"x"), true},
        {text(RTKWORD, L"S"), true, true},
        {text(RTKWORD, L"Settings"), true, true},
        {text(RTKWORD, L"settings"), true},
        {text(RTKWORD, L""), true},
        {code(RTREJ), true},
        {esc, false},
        {code(RTERROR), false},
    };
    for (const Row& row : rows)
    {
        ScriptedEditor editor;
        const std::deque<ScriptedAnswer> once = {row.answer};
        const std::deque<ScriptedAnswer> again = {row.answer, row.answer, esc};
        editor.run(row.asksAgain ? again : once);
        const auto round =
            together(times(1, askedFirst), times(row.opensDialog ? 1 : 0, L"dialog"));
        const auto asked = row.asksAgain ? together(round, round, times(1, askedFirst)) : round;
        EXPECT_EQ(editor.log, together(borrowed, asked, givenBack));
        EXPECT_EQ(editor.contents(), Contents());
    }
}

TEST(GridCommand, asksForTheFirstCornerAgainWhenItCannotReadWhatWasTyped)
{
    ScriptedEditor editor;
    editor.inputCannotBeRead = true;
    editor.run({text(RTKWORD, L"S"), esc});
    EXPECT_EQ(editor.log, together(borrowed, times(2, askedFirst), givenBack));
}

TEST(GridCommand, endsWithoutAnOtherCornerAndLeavesNothing)
{
    for (const ScriptedAnswer& answer : {enter, esc, code(RTERROR), text(RTKWORD, L"S")})
    {
        ScriptedEditor editor;
        editor.run({point(0, 0), answer});
        EXPECT_EQ(editor.log,
                  together(borrowed, times(1, askedFirst), times(1, askedOther), givenBack));
        EXPECT_EQ(editor.contents(), Contents());
        EXPECT_EQ(editor.settings.read(), "");
    }
}

TEST(GridCommand, outlineStandsInItsColourWhileTheGridIsOffered)
{
    ScriptedEditor editor;
    editor.run({point(10, 20), point(310, 220),
                looking(esc,
                        [&]
                        {
                            EXPECT_EQ(editor.contents().outlines, 1);
                            EXPECT_GT(editor.contents().lines, 0);
                        })});
    EXPECT_EQ(editor.contents(), Contents());
}

TEST(GridCommand, applyAndEnterKeepTheGridAsOneGroup)
{
    for (const ScriptedAnswer& answer : {enter, text(RTNORM, L"A")})
    {
        ScriptedEditor editor;
        editor.run({point(0, 0), point(300, 200), answer});
        const Contents contents = editor.contents();
        EXPECT_GT(contents.lines, 0);
        EXPECT_EQ(contents.outlines, 1);
        EXPECT_THAT(contents.groups, ElementsAre(contents.lines));
        EXPECT_THAT(editor.settings.read(), HasSubstr("\r\nHorStep=100.0000\r\n"));
    }
}

TEST(GridCommand, anyOtherAnswerRebuildsTheGrid)
{
    const ScriptedAnswer answers[] = {
        text(RTNORM, L"a"),  text(RTNORM, L"Apply"), text(RTNORM, L""),
        text(RTNORM, L"S"),  text(RTNORM, L"x"),     text(RTKWORD, L"A"),
        text(RTKWORD, L"x"), code(RTERROR),          code(RTREJ),
    };
    for (const ScriptedAnswer& answer : answers)
    {
        ScriptedEditor editor;
        Contents first;
        std::size_t objects = 0;
        const auto note = [&]
        {
            first = editor.contents();
            objects = host::coreOf(*editor.database).objects().size();
        };
        const auto compare = [&]
        {
            EXPECT_EQ(editor.contents(), first);
            EXPECT_EQ(host::coreOf(*editor.database).objects().size(), objects + first.lines);
        };
        editor.run({point(0, 0), point(300, 200), looking(answer, note), looking(esc, compare)});
        EXPECT_GT(first.lines, 0);
        EXPECT_EQ(editor.contents(), Contents());
        EXPECT_EQ(editor.settings.read(), "");
    }
}

TEST(GridCommand, theOldGridIsGoneBeforeTheNewOneIsBuilt)
{
    ScriptedEditor editor;
    std::vector<int>
        standing;  // the number of lines in the drawing at each entity of the second grid
    const auto watch = [&]
    { editor.placing = [&] { standing.push_back(editor.contents().lines); }; };
    const auto stop = [&] { editor.placing = {}; };
    editor.run(
        {point(0, 0), point(300, 200), looking(text(RTNORM, L"x"), watch), looking(esc, stop)});
    ASSERT_GT(standing.size(), 1u);
    EXPECT_EQ(standing.front(), 0);
    EXPECT_EQ(standing.back(), static_cast<int>(standing.size()) - 1);
}

TEST(GridCommand, onlyTheWholeKeywordOpensTheSettingsOfAGrid)
{
    struct Row
    {
        const wchar_t* text;
        bool opensDialog;
    };
    const Row rows[] = {
        {L"S", true},         {L"s", false},
        {L"Settings", false},  // its first letter is enough only at the first corner
        {L"S ", false},       {L"", false},
        {L"AS", false},
    };
    for (const Row& row : rows)
    {
        ScriptedEditor editor;
        editor.run({point(0, 0), point(300, 200), text(RTNORM, row.text), esc});
        EXPECT_EQ(std::ranges::count(editor.log, L"dialog"), row.opensDialog) << row.text;
    }
}

TEST(GridCommand, refusedLargeGridIsBuiltAtTheNextAnswerWithoutAQuestion)
{
    ScriptedEditor editor;
    editor.boxAnswers = {IDNO};
    const auto empty = [&] { EXPECT_EQ(editor.contents().lines, 0); };
    const auto built = [&] { EXPECT_GT(editor.contents().lines, 0); };
    editor.run({point(0, 0), point(5100, 100), looking(text(RTNORM, L"x"), empty),
                looking(text(RTNORM, L"x"), built), looking(enter, built)});
    EXPECT_THAT(editor.contents().groups, ElementsAre(editor.contents().lines));
}

TEST(GridCommand, agreedLargeGridIsNeverAskedAboutAgain)
{
    ScriptedEditor editor;
    editor.boxAnswers = {IDYES};
    const auto built = [&] { EXPECT_GT(editor.contents().lines, 0); };
    editor.run(
        {point(0, 0), point(5100, 100), looking(text(RTNORM, L"x"), built), looking(esc, built)});
    EXPECT_EQ(editor.contents(), Contents());
}

TEST(GridCommand, refusedLargeGridCanBeAcceptedEmpty)
{
    for (const ScriptedAnswer& answer : {enter, text(RTNORM, L"A")})
    {
        ScriptedEditor editor;
        editor.boxAnswers = {IDNO};
        editor.settings.write("[GRID]\ndelCont=1\nHorStep=1\nVertStep=1\n");
        editor.run({point(0, 0), point(100, 100), answer});
        EXPECT_EQ(editor.contents(), (Contents{.groups = {0}}));
        EXPECT_THAT(editor.settings.read(), HasSubstr("\r\nHorStep=1.0000\r\n"));
    }
}

TEST(GridCommand, sizeOfTheRectangleDoesNotDependOnTheTurnOfItsCorners)
{
    ScriptedEditor editor;
    editor.boxAnswers = {IDNO};
    editor.run({point(5100, 100), point(0, 0), esc});
    EXPECT_EQ(editor.log[5], L"box Attention: Large number of horizontal lines in grid. Proceed?");
}

TEST(GridCommand, erasesTheOutlineOnAcceptanceOnlyWhenItIsTold)
{
    struct Row
    {
        const char* delCont;
        int outlines;
    };
    for (const Row row : {Row{"0", 1}, {"1", 0}, {"2", 1}, {"-1", 1}})
    {
        ScriptedEditor editor;
        editor.settings.write(std::string("[GRID]\nHorStep=10\nVertStep=10\ndelCont=") +
                              row.delCont + "\n");
        const auto stands = [&] { EXPECT_EQ(editor.contents().outlines, 1); };
        editor.run({point(0, 0), point(100, 100), looking(enter, stands)});
        EXPECT_EQ(editor.contents().outlines, row.outlines) << row.delCont;
    }
}

TEST(GridCommand, keepsTheGridWhenTheSettingsCannotBeSaved)
{
    struct Row
    {
        LCID locale;
        const wchar_t* said;
    };
    const Row rows[] = {
        {0x0409, L"***\n*** failed to save changes in options data"},
        {0x0419, L"***\n*** не получилось сохранить последние изменения в файле настроек"},
    };
    for (const Row& row : rows)
    {
        ScriptedEditor editor;
        editor.locale = row.locale;
        editor.settingsFolderIsMissing = true;
        editor.run({point(0, 0), point(300, 200), enter});
        EXPECT_THAT(editor.said, testing::EndsWith(row.said));
        EXPECT_EQ(editor.contents().groups.size(), 1u);
    }
}

// The settings are saved whatever fails later, and the outline is not a member of the group.
TEST(GridCommand, acceptanceSavesThenErasesTheOutlineThenGroups)
{
    const std::string wanted = "[GRID]\nHorStep=50\nVertStep=50\ndelCont=1\n";
    ScriptedEditor saving;
    saving.settings.write(wanted);
    int failures = 0;
    saving.hear = [&](const std::wstring& said)
    {
        if (said.find(L"failed to save") != std::wstring::npos)
        {
            ++failures;
            EXPECT_EQ(saving.contents().outlines, 1);
            EXPECT_THAT(saving.contents().groups, testing::IsEmpty());
        }
    };
    saving.run({point(0, 0), point(100, 100), looking(enter, [&] { saving.settings.block(); })});
    EXPECT_EQ(failures, 1);

    ScriptedEditor grouping;
    grouping.settings.write(wanted);
    grouping.meter.look = [&]
    {
        EXPECT_THAT(grouping.settings.read(), HasSubstr("\r\nHorStep=50.0000\r\n"));
        EXPECT_EQ(grouping.contents().outlines, 0);
    };
    grouping.run({point(0, 0), point(100, 100), enter});
    EXPECT_EQ(grouping.meter.started, 1);
}

// Nothing ever changes if no person answers in between.
TEST(GridCommand, aPromptThatFailsForGoodCountsAsCancelled)
{
    const std::deque<ScriptedAnswer> failing(16, code(RTREJ));
    ScriptedEditor first;
    first.run(failing);
    EXPECT_EQ(first.log, together(borrowed, times(16, askedFirst), givenBack));

    for (const int failure : {RTREJ, RTFAIL, RTERROR})
    {
        ScriptedEditor preview;
        std::deque<ScriptedAnswer> answers = {point(0, 0), point(250, 250)};
        answers.insert(answers.end(), 16, code(failure));
        preview.run(answers);
        EXPECT_EQ(preview.contents(), Contents());
        EXPECT_EQ(preview.log, together(borrowed, times(1, askedFirst), times(1, askedOther),
                                        times(16, askedToAccept), givenBack));
    }
}

// A typed answer after fifteen failures resets the count.
TEST(GridCommand, failuresOfAPromptCountInARowOnly)
{
    std::deque<ScriptedAnswer> answers;
    const auto fail = [&] { answers.insert(answers.end(), 15, code(RTFAIL)); };
    for (const ScriptedAnswer& typed : {enter, text(RTKWORD, L"x"), point(0, 0)})
    {
        fail();
        answers.push_back(typed);
    }
    answers.push_back(point(250, 250));
    for (const ScriptedAnswer& typed : {text(RTKWORD, L"x"), text(RTNORM, L"x"), enter})
    {
        fail();
        answers.push_back(typed);
    }
    ScriptedEditor editor;
    editor.run(answers);
    EXPECT_EQ(editor.contents().groups.size(), 1u);
}

TEST(GridCommand, escErasesTheGridInItsOrderAndThenTheOutline)
{
    ScriptedEditor editor;
    std::vector<AcDbStub*> standing;
    const auto note = [&]
    {
        host::undoMark(*editor.database);  // what a step makes and erases is not noted
        const host::ObjectStore& stubs = host::coreOf(*editor.database).objects();
        for (std::size_t i = 0; i < stubs.size(); ++i)
        {
            if (host::typeOf(&stubs[i]) == AcDbLine::desc())
            {
                standing.push_back(&stubs[i]);
            }
        }
    };
    editor.run({point(0, 0), point(300, 200), looking(esc, note)});
    const std::vector<AcDbStub*>& erased = host::coreOf(*editor.database).undoLog().erased();
    ASSERT_GT(standing.size(), 1u);
    ASSERT_GT(erased.size(), standing.size());
    EXPECT_TRUE(std::ranges::equal(standing, std::span(erased).first(standing.size())));
    EXPECT_EQ(host::typeOf(erased[standing.size()]), AcDb2dPolyline::desc());
}

TEST(GridCommand, savesTheOtherSectionsOfItsFileToo)
{
    ScriptedEditor editor;
    editor.settings.write("[mine]\nk=v\n[GRID]\nHorStep=50\nVertStep=50\n");
    editor.run({point(0, 0), point(100, 100), enter});
    EXPECT_THAT(editor.settings.read(), HasSubstr("[mine]\r\nk=v\r\n"));
}

// Text that another program writes into the file meanwhile is lost, as in every editor.
TEST(GridCommand, savesItsFileAsItWasWhenTheCommandBegan)
{
    ScriptedEditor editor;
    editor.settings.write("[mine]\nk=v\n[GRID]\nHorStep=50\nVertStep=50\n");
    const auto change = [&]
    { editor.settings.write("[mine]\nk=other\n[later]\n[GRID]\nHorStep=10\nVertStep=10\n"); };
    editor.run({point(0, 0), point(100, 100), looking(enter, change)});
    const std::string saved = editor.settings.read();
    EXPECT_THAT(saved, HasSubstr("[mine]\r\nk=v\r\n"));
    EXPECT_THAT(saved, HasSubstr("\r\nHorStep=50.0000\r\n"));
    EXPECT_THAT(saved, testing::Not(HasSubstr("later")));
}

std::set<std::wstring> textStyles(const AcDbDatabase& database)
{
    std::set<std::wstring> names;
    const host::ObjectStore& stubs = host::coreOf(database).objects();
    for (std::size_t i = 0; i < stubs.size(); ++i)
    {
        AcDbText* text = nullptr;
        if (acdbOpenObject(text, AcDbObjectId(&stubs[i]), AcDb::kForRead) == Acad::eOk)
        {
            names.insert(host::recordName(text->textStyle()));
            text->close();
        }
    }
    return names;
}

// The command passes the style by name, even where the drawing's style cannot be read.
TEST(GridCommand, labelsAreDrawnInTheDrawingsTextStyle)
{
    struct Row
    {
        const wchar_t* currentStyle;  // null: the drawing has no current style
        const wchar_t* labelStyle;
    };
    for (const Row& row : {Row{L"Sheet", L"Sheet"},
                           {L"", L"Standard"},  // the record of a shape file has no name
                           {nullptr, L"Standard"}})
    {
        ScriptedEditor editor;
        host::DatabaseCore& core = host::coreOf(*editor.database);
        core.current().textStyle = nullptr;
        if (row.currentStyle != nullptr)
        {
            auto* style = core.addLoadedRecord<AcDbTextStyleTableRecord>(
                core.roots()[host::Root::textStyleTable], row.currentStyle, 0x7777);
            core.current().textStyle = style->objectId().stub();
        }
        editor.settings.write(
            "[GRID]\nHorStep=100\nVertStep=100\nneedText=2\nheightText=2\nbXTopScribe=1\n"
            "bXBottomScribe=1\nbYLeftScribe=1\nbYRightScribe=1\ntextXScribe=\ntextYScribe=\n");
        editor.run({point(50, 50), point(250, 250), enter});
        const Contents contents = editor.contents();
        EXPECT_EQ(contents.texts, 8);
        EXPECT_THAT(contents.groups, ElementsAre(contents.lines + contents.texts));
        EXPECT_THAT(textStyles(*editor.database), ElementsAre(row.labelStyle));
    }
}

TEST(GridCommand, anyColourNumberInTheFileIsSurvived)
{
    for (const char* color : {"-1", "0", "256", "65548", "2147483647", "-2147483648"})
    {
        ScriptedEditor editor;
        editor.settings.write(std::string("[GRID]\nHorStep=100\nVertStep=100\nColor=") + color +
                              "\n");
        editor.run({point(0, 0), point(300, 200), enter});
        EXPECT_EQ(editor.contents().groups.size(), 1u) << color;
    }
}

TEST(GridCommand, takesBackOnlyTheCoordinateSystemThatItSet)
{
    ScriptedEditor editor;
    editor.ucsCannotBeSet = true;
    editor.formerUcs = {AcGeMatrix3d()};
    editor.run({esc});
    EXPECT_EQ(editor.log, (std::vector<std::wstring>{L"UCSICON=0", L"UCSFOLLOW=0", askedFirst,
                                                     L"UCSICON=3", L"UCSFOLLOW=1"}));
    EXPECT_EQ(editor.formerUcs.size(), 1u);
}

TEST(GridCommand, leavesAloneAVariableThatItCannotRead)
{
    for (const wchar_t* name : {L"UCSICON", L"UCSFOLLOW"})
    {
        ScriptedEditor editor;
        editor.unreadable = {name};
        editor.run({esc});
        const std::wstring prefix = std::wstring(name) + L"=";
        EXPECT_EQ(std::ranges::count_if(editor.log,
                                        [&](const auto& call) { return call.starts_with(prefix); }),
                  0);
        EXPECT_EQ(editor.icon, 3);
        EXPECT_EQ(editor.follow, 1);
    }
}

TEST(GridCommand, cornersAreTakenInTheCoordinateSystemOfTheScreen)
{
    ScriptedEditor editor;
    editor.ucs = AcGeMatrix3d::translation(AcGeVector3d(1000, 2000, 0));
    AcGePoint3dArray outline;
    const auto look = [&]
    {
        const host::ObjectStore& stubs = host::coreOf(*editor.database).objects();
        for (std::size_t i = 0; i < stubs.size(); ++i)
        {
            AcDb2dPolyline* polyline = nullptr;
            if (acdbOpenObject(polyline, AcDbObjectId(&stubs[i]), AcDb::kForRead) == Acad::eOk)
            {
                EXPECT_EQ(polyline->colorIndex(), 250);
                polyline->getStretchPoints(outline);
                polyline->close();
            }
        }
    };
    editor.run({point(10, 20), point(310, 220, 5), looking(esc, look)});
    ASSERT_EQ(outline.length(), 4);
    EXPECT_TRUE(outline[0].isEqualTo(AcGePoint3d(1010, 2020, 0)));
    EXPECT_TRUE(outline[1].isEqualTo(AcGePoint3d(1010, 2220, 0)));
    EXPECT_TRUE(outline[3].isEqualTo(AcGePoint3d(1310, 2020, 0)));
    EXPECT_TRUE(editor.ucs.translation().isEqualTo(AcGeVector3d(1000, 2000, 0)));
}
}  // namespace
