#include "command/editsettings.h"

#include <gtest/gtest.h>

#include "tests/app/hostcalls.h"
#include "tests/command/scriptededitor.h"

namespace
{
TEST(EditSettings, showNoDialogWhereItsTemplateCannotBeFound)
{
    HostCalls host;
    host.documentManagerIsMissing = true;
    GridSettings settings;
    EXPECT_FALSE(editSettings(settings, -1, -1, L"en-US"));
    EXPECT_EQ(settings.HorStep, 100);
}

TEST(EditSettings, tellWhetherTheUserTookThem)
{
    GridSettings settings;
    ScriptedEditor editor;
    EXPECT_FALSE(editSettings(settings, -1, -1, L"en-US"));
    editor.userOfDialog = [](CDialog&) {};
    EXPECT_TRUE(editSettings(settings, -1, -1, L"en-US"));
}
}  // namespace
