#include "command/editsettings.h"

#include <gtest/gtest.h>

#include "tests/app/hostcalls.h"

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
}  // namespace
