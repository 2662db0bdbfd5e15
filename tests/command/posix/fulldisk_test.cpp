#include <filesystem>
#include <optional>

#include <gmock/gmock.h>

#include "tests/command/scriptededitor.h"
#include "tests/support/fulldisk.h"

namespace
{
TEST(FullDisk, isToldWhenTheSettingsFindNoRoomAndTheGridStays)
{
    ScriptedEditor editor;
    std::optional<tests::FullDisk> disk;
    editor.run({point(0, 0), point(250, 250), {RTNONE, {}, {}, [&] { disk.emplace(); }}});
    disk.reset();
    EXPECT_THAT(editor.said, testing::HasSubstr(L"\n*** failed to save changes in options data"));
    EXPECT_EQ(editor.contents().groups.size(), 1u);
}

TEST(DeviceInPlaceOfTheSettings, isToldAsAFailureToSave)
{
    for (const char* device : {"/dev/null", "/dev/zero", "/dev/full"})
    {
        ScriptedEditor editor;
        const auto link = [&]
        { std::filesystem::create_symlink(device, editor.settings.path().GetString()); };
        editor.run({point(0, 0), point(250, 250), {RTNONE, {}, {}, link}});
        EXPECT_THAT(editor.said,
                    testing::HasSubstr(L"\n*** failed to save changes in options data"))
            << device;
    }
}
}  // namespace
