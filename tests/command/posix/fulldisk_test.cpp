#include <filesystem>

#include <gmock/gmock.h>

#include "tests/command/scriptededitor.h"

namespace
{
TEST(FullDisk, isToldWhenTheSettingsFindNoRoomAndTheGridStays)
{
    ScriptedEditor editor;
    const auto fill = [&]
    { std::filesystem::create_symlink("/dev/full", editor.settings.path().GetString()); };
    editor.run({point(0, 0), point(250, 250), {RTNONE, {}, {}, fill}});
    EXPECT_THAT(editor.said, testing::HasSubstr(L"\n*** failed to save changes in options data"));
    EXPECT_EQ(editor.contents().groups.size(), 1u);
}
}  // namespace
