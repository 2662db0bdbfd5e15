#include "host/program/unsaved.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "host/database/drawing.h"
#include "host/editor/editor.h"
#include "host/program/longwork.h"
#include "tests/support/scratchfolder.h"
#include "tests/support/session.h"

namespace
{
namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// A person at the command line of an open drawing.
class Unsaved : public testing::Test
{
protected:
    struct Person : support::Typist
    {
        bool interactive() const override { return isPerson; }
        void showMeter(const std::optional<host::Meter>& meter) override
        {
            meters += meter ? "shown " : "gone ";
        }

        bool isPerson = true;
        std::string meters;
    };

    Unsaved() { session.document().setPath(folder / "site.dxf"); }
    ~Unsaved() override { fs::remove_all(folder); }

    void change() { host::stateOf(session.drawing()).paperSpace ^= true; }

    const fs::path folder = support::scratchFolder();
    support::Session session;
    Person person;
    host::Editor editor{person, false};
};

TEST_F(Unsaved, aDrawingIsUnsavedFromItsFirstChangeOn)
{
    host::noteSaved(editor);
    EXPECT_FALSE(host::isUnsaved());
    change();
    EXPECT_TRUE(host::isUnsaved());
    host::noteSaved(editor);
    EXPECT_FALSE(host::isUnsaved());
}

TEST_F(Unsaved, changesAreGivenUpOnlyAfterAYes)
{
    host::noteSaved(editor);
    EXPECT_TRUE(host::mayGiveUpChanges(editor));
    EXPECT_THAT(person.questions, IsEmpty());
    change();
    for (const auto& [answer, mayGoOn] :
         {std::pair("y", true), std::pair("_Yes", true), std::pair("n", false),
          std::pair("", false), std::pair("^C", false)})
    {
        person.lines = {answer};
        EXPECT_EQ(host::mayGiveUpChanges(editor), mayGoOn) << answer;
    }
    person.lines = {"perhaps", "yes"};
    EXPECT_TRUE(host::mayGiveUpChanges(editor));
    EXPECT_THAT(person.transcript, HasSubstr("Invalid option keyword."));
    person.lines = {};  // the input has ended
    EXPECT_FALSE(host::mayGiveUpChanges(editor));
}

TEST_F(Unsaved, onlyAPersonIsAskedBeforeAFileIsReplaced)
{
    EXPECT_TRUE(host::mayReplace(editor, folder / "new.dxf"));
    EXPECT_TRUE(host::mayReplace(editor, folder));  // the saving itself refuses a folder
    EXPECT_THAT(person.questions, IsEmpty());
    std::ofstream(folder / "old.dxf") << "old";
    person.lines = {"n"};
    EXPECT_FALSE(host::mayReplace(editor, folder / "old.dxf"));
    EXPECT_EQ(person.questions.size(), 1u);
    person.isPerson = false;
    EXPECT_TRUE(host::mayReplace(editor, folder / "old.dxf"));
    EXPECT_EQ(person.questions.size(), 1u);
}

TEST_F(Unsaved, workIsKeptBesideTheDrawingUnderANameThatReplacesNothing)
{
    std::ofstream(folder / "site-recovered.dxf") << "earlier work";
    host::keepUnsaved(editor);
    EXPECT_THAT(person.reports, ElementsAre(HasSubstr("site-recovered-2.dxf")));
    EXPECT_GT(fs::file_size(folder / "site-recovered-2.dxf"), 1000u);
    EXPECT_EQ(fs::file_size(folder / "site-recovered.dxf"), 12u);
    host::tellKept(editor);
    EXPECT_THAT(person.transcript, HasSubstr("site-recovered.dxf keeps changes"));
    EXPECT_THAT(person.transcript, HasSubstr("site-recovered-2.dxf keeps changes"));
}

TEST_F(Unsaved, workOnADrawingWithAVeryLongNameIsKeptUnderAShortOne)
{
    session.document().setPath(folder / (std::string(240, 'x') + ".dxf"));
    host::keepUnsaved(editor);
    EXPECT_TRUE(fs::exists(folder / "drawing-recovered.dxf"));
}

TEST_F(Unsaved, workIsKeptElsewhereWhenTheFolderOfTheDrawingTakesNoFile)
{
    session.document().setPath(folder / "gone" / "site.dxf");
    host::keepUnsaved(editor);
    ASSERT_EQ(person.reports.size(), 1u);
    const std::string said = person.reports.front();
    const fs::path kept = said.substr(said.find('/'));
    EXPECT_TRUE(fs::exists(kept)) << said;
    EXPECT_EQ(kept.filename().string().substr(0, 14), "site-recovered");
    fs::remove(kept);
}

TEST_F(Unsaved, shortWorkShowsNoMeter)
{
    {
        host::LongWork work(L"Saving", person);
        const host::Progress progress = work.progress();
        progress(0.1);
        progress(0.9);
    }
    EXPECT_EQ(person.meters, "");
}
}  // namespace
