#include "host/program/terminal/completion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "host/windows/text.h"
#include "tests/support/scratchfolder.h"
#include "tests/support/session.h"

namespace
{
using host::Question;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

Question question(Question::Kind kind, std::vector<std::wstring> keywords = {})
{
    return {.kind = kind, .prompt = {}, .keywords = std::move(keywords)};
}

TEST(Completion, atTheCommandPromptKnowsCommandsAndVariablesInAnyLetterCase)
{
    support::Session session;
    const Question command = question(Question::Kind::command);
    EXPECT_EQ(host::complete(command, L"vpo").text, L"VPOINT");
    EXPECT_EQ(host::complete(command, L"vpo").replaced, 3u);
    EXPECT_EQ(host::complete(command, L"_.vpo").replaced, 3u);  // the marks stay
    EXPECT_EQ(host::complete(command, L"TEXTSI").text, L"TEXTSIZE");
    EXPECT_THAT(host::complete(command, L"U").choices, Contains(L"UCS"));
    EXPECT_EQ(host::complete(command, L"no such").text, L"");
    EXPECT_THAT(host::complete(command, L"no such").choices, IsEmpty());
}

TEST(Completion, completesACommandByTheNameThatItsMarksAskFor)
{
    support::Session session;
    session.define(L"LOOKABOUT", [] {});
    EXPECT_EQ(host::complete(question(Question::Kind::command), L"looka").text, L"LOOKABOUT");
    EXPECT_EQ(host::complete(question(Question::Kind::command), L"_looka").text, L"LOOKABOUT");
}

TEST(Completion, inACommandKnowsItsKeywordsAndAfterAnApostropheCommands)
{
    support::Session session;
    const Question keyword =
        question(Question::Kind::keyword, {L"Accept", L"Change", L"Cancel", L"Color"});
    EXPECT_EQ(host::complete(keyword, L"a").text, L"Accept");
    EXPECT_THAT(host::complete(keyword, L"C").choices, ElementsAre(L"Cancel", L"Change", L"Color"));
    EXPECT_EQ(host::complete(keyword, L"ca").text, L"Cancel");
    EXPECT_EQ(host::complete(keyword, L"vpo").text, L"");
    EXPECT_EQ(host::complete(keyword, L"'vpo").text, L"VPOINT");
    EXPECT_EQ(host::complete(keyword, L"'TEXTSI").text, L"");  // a variable is no command
}

TEST(Completion, extendsTheTextBeforeItShowsChoices)
{
    const Question keyword = question(Question::Kind::keyword, {L"Vertical", L"Vertex"});
    const host::Completion first = host::complete(keyword, L"v");
    EXPECT_EQ(first.text, L"Vert");
    EXPECT_THAT(first.choices, IsEmpty());
    EXPECT_THAT(host::complete(keyword, first.text).choices, ElementsAre(L"Vertex", L"Vertical"));
}

TEST(Completion, inADialogKnowsTheWordsOfDialogLines)
{
    const Question dialog = question(Question::Kind::dialog);
    EXPECT_EQ(host::complete(dialog, L"che").text, L"check");
    EXPECT_THAT(host::complete(dialog, L"c").choices,
                ElementsAre(L"check", L"click", L"close", L"color"));
}

TEST(Completion, ofAFileKnowsTheNamesInItsFolderAndHeedsLetterCase)
{
    const std::filesystem::path folder = support::scratchFolder();
    for (const char* name : {"plan a.dxf", "plan b.dxf", "Plan.dxf", ".hidden"})
    {
        std::ofstream(folder / name);
    }
    std::filesystem::create_directory(folder / "sheets");
    const std::wstring in = host::fromUtf8(folder.string()) + L"/";
    const Question file = question(Question::Kind::file);

    EXPECT_EQ(host::complete(file, in + L"pl").text, L"plan ");  // a blank belongs to the name
    EXPECT_THAT(host::complete(file, in + L"plan ").choices,
                ElementsAre(L"plan a.dxf", L"plan b.dxf"));
    EXPECT_EQ(host::complete(file, in + L"s").text, L"sheets/");
    EXPECT_EQ(host::complete(file, L"\"" + in + L"P").text, L"Plan.dxf");
    EXPECT_THAT(host::complete(file, in).choices, Not(Contains(L".hidden")));
    EXPECT_EQ(host::complete(file, in + L".").text, L".hidden");
    EXPECT_EQ(host::complete(file, in + L"none/").text, L"");
    std::filesystem::remove_all(folder);
}
}  // namespace
