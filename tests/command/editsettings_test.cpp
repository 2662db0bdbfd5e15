#include "command/editsettings.h"

#include <gtest/gtest.h>

#include "app/entry.h"
#include "tests/app/hostcalls.h"
#include "tests/command/scriptededitor.h"

namespace
{
TEST(EditSettings, showNoDialogWhereItsTemplateCannotBeFound)
{
    HostCalls host;
    host.documentManagerIsMissing = true;
    GridRun run(attachedModule());
    EXPECT_FALSE(editSettings(run, -1, -1));
    EXPECT_EQ(run.settings.HorStep, 100);
}

TEST(EditSettings, tellWhetherTheUserTookThem)
{
    ScriptedEditor editor;
    GridRun run(attachedModule());
    EXPECT_FALSE(editSettings(run, -1, -1));
    editor.userOfDialog = [](CDialog&) {};
    EXPECT_TRUE(editSettings(run, -1, -1));
}
}  // namespace
