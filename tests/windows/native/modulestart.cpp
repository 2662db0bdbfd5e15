// The module lies in the test program, whose start Windows tells no DllMain.
#include <gtest/gtest.h>

#include "windows.h"

extern "C" BOOL APIENTRY DllMain(HINSTANCE module, DWORD reason, LPVOID);

namespace
{
class ModuleStart : public testing::Environment
{
public:
    void SetUp() override { ASSERT_TRUE(DllMain(program(), DLL_PROCESS_ATTACH, nullptr)); }
    void TearDown() override { DllMain(program(), DLL_PROCESS_DETACH, nullptr); }

private:
    static HINSTANCE program() { return GetModuleHandleW(nullptr); }
};

testing::Environment* const added = testing::AddGlobalTestEnvironment(new ModuleStart);
}  // namespace
