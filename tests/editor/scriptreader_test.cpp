#include "host/editor/scriptreader.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "host/editor/scripttext.h"
#include "host/windows/text.h"

namespace
{
using Kind = host::Question::Kind;

// Questions with their answers between bars, each behind the letter of its kind.
struct Row
{
    const char* script;
    std::string_view answers;
};

Kind kindOf(char letter)
{
    static const std::map<char, Kind> kinds = {
        {'c', Kind::command}, {'p', Kind::point},      {'l', Kind::distance}, {'k', Kind::keyword},
        {'t', Kind::text},    {'b', Kind::messageBox}, {'d', Kind::dialog},
    };
    return kinds.at(letter);
}

std::string told(const host::Answer& answer)
{
    switch (answer.kind)
    {
        case host::Answer::Kind::enter:
            return "<Enter>";
        case host::Answer::Kind::cancel:
            return "<Esc>";
        case host::Answer::Kind::endOfInput:
            return "<end>";
        default:
            return host::toUtf8(answer.text);
    }
}

template <std::size_t count>
void expectAnswers(const Row (&rows)[count])
{
    for (const Row& row : rows)
    {
        const host::Result<std::string> text = host::scriptText(row.script, "script");
        host::ScriptReader reader(*text);
        std::string got;
        std::istringstream wanted{std::string(row.answers)};
        for (std::string part; std::getline(wanted, part, '|');)
        {
            const char letter = part.front();
            const host::Answer answer = reader.next({.kind = kindOf(letter)});
            EXPECT_FALSE(answer.visible);
            got += (got.empty() ? "" : "|") + std::string(1, letter) + " " + told(answer);
        }
        EXPECT_EQ(got, row.answers) << "script: " << row.script;
    }
}

TEST(ScriptFile, aBlankEndsAnAnswerAsTheLineEndDoes)
{
    expectAnswers({
        {"zv_netrax 0,0 100,100\n", "c zv_netrax|p 0,0|p 100,100|c <end>|c <end>"},
        {"zv_netrax\n0,0\n100,100", "c zv_netrax|p 0,0|p 100,100|c <end>"},
        {"zv_netrax 0,0\r\n9,9\tA\r\n", "c zv_netrax|p 0,0|p 9,9|k A|c <end>"},
        {"\xEF\xBB\xBFzv_netrax Н\n", "c zv_netrax|p Н|p <end>"},
        {"12.5 U\n", "l 12.5|c U|c <end>"},
        {"", "c <end>"},
    });
}

TEST(ScriptFile, aFurtherBlankAndAnEmptyLineAreEnter)
{
    expectAnswers({
        {"U\n\nU\n", "c U|c <Enter>|c U|c <end>"},
        {"DVIEW  TW 30 \n", "c DVIEW|k <Enter>|k TW|l 30|k <Enter>|c <end>"},
        {" U\n", "c <Enter>|c U|c <end>"},
        {"A \n", "k A|c <Enter>|c <end>"},
        {"A ", "k A|c <end>"},  // no line ends here
        {"\n", "c <Enter>|c <end>"},
    });
}

TEST(ScriptFile, textsBoxesAndDialogsTakeTheRestOfTheLine)
{
    expectAnswers({
        {"CLAYER my own layer \nU", "c CLAYER|t my own layer |c U"},
        {"SAVEAS \"a b.dxf\"\n", "c SAVEAS|t \"a b.dxf\"|c <end>"},
        {"0,0 10,10\nyes\nA\n", "p 0,0|p 10,10|b yes|k A"},
        {"5,5 yes please\nA\n", "p 5,5|b yes please|k A"},
        {"S set 138 x = \nclick 1\n1,1", "p S|d set 138 x = |d click 1|p 1,1"},
        {"CLAYER \nS\n\n0,0", "c CLAYER|t <Enter>|p S|d <Enter>|p 0,0"},
    });
}

TEST(ScriptFile, commentsAreLinesOfTheirOwn)
{
    expectAnswers({
        {"; a grid\n;\nU\n; done\n", "c U|c <end>"},
        {"SAVEAS\n; where to\nx\n", "c SAVEAS|t x"},
        {"0,0 ;1,1\n", "p 0,0|p ;1,1|c <end>"},
        {"; no line end", "c <end>"},
        {"A\n; x\n\nU", "k A|c <Enter>|c U"},
    });
}

TEST(ScriptFile, quotesKeepBlanksTogetherAndAreDropped)
{
    expectAnswers({
        {"ARX L \"my own.arx\" U\n", "c ARX|k L|k my own.arx|c U"},
        {"a\" \"b \"\" c", "k a b|k <Enter>|k c"},
        {"\"left open \nU\n", "k left open |c U"},
    });
}

TEST(ScriptFile, escIsAWordOrALine)
{
    expectAnswers({
        {"zv_netrax ^C U\n", "c zv_netrax|p <Esc>|c U"},
        {"S\n^C\n^C\n", "p S|d <Esc>|p <Esc>|c <end>"},
        {"^C^C\n", "c ^C^C"},  // menus write it so, scripts do not
    });
}

TEST(ScriptFile, isKnownByItsName)
{
    const struct
    {
        const char* name;
        bool script;
    } rows[] = {
        {"grid.scr", true}, {"a/b/GRID.Scr", true},  {"grid.txt", false},
        {"scr", false},     {"grid.scr.txt", false},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(host::isHostScript(row.name), row.script) << row.name;
    }
}
}  // namespace
