#include "app/gridapp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/entry.h"
#include "app/tables.h"
#include "tests/app/hostcalls.h"

extern "C" BOOL APIENTRY DllMain(HINSTANCE module, DWORD reason, LPVOID);

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::wstring> sent(HostCalls& host, AcRx::AppMsgCode message)
{
    EXPECT_EQ(acrxEntryPoint(message, reinterpret_cast<void*>(0x80)), AcRx::kRetOK);
    return host.take();
}

// Flags: transparent, not in paper space, not in the block editor. The function code is the host's
// to choose, and the command's resources are the module's.
std::wstring gridCommandAdded()
{
    std::wostringstream text;
    text << L"addCommand Obrenta zv_netrax zv_netrax " << 0x2000041 << L" "
         << reinterpret_cast<void*>((*commandSlots().begin)->handler) << L" 0 -1 "
         << static_cast<void*>(attachedModule()) << L" 0";
    return text.str();
}

TEST(GridApp, isUnlockedAwareOfSeveralDrawingsAndHasOneCommand)
{
    HostCalls host;
    EXPECT_THAT(
        sent(host, AcRx::kInitAppMsg),
        ElementsAre(L"unlockApplication 0x80", L"registerAppMDIAware 0x80", gridCommandAdded()));
    EXPECT_NE(attachedModule(), nullptr);
    EXPECT_EQ(gridApp().moduleHandle(), attachedModule());
}

TEST(GridApp, takesItsCommandAwayWithItAndBringsItBack)
{
    HostCalls host;
    EXPECT_THAT(sent(host, AcRx::kUnloadAppMsg), ElementsAre(L"removeCmd Obrenta zv_netrax"));
    EXPECT_THAT(sent(host, AcRx::kInitAppMsg), testing::Contains(gridCommandAdded()));
    EXPECT_THAT(sent(host, AcRx::kUnloadAppMsg), ElementsAre(L"removeCmd Obrenta zv_netrax"));
}

TEST(GridApp, asksNothingOfTheHostAtTheOtherMessages)
{
    HostCalls host;
    host.functionCode = 0;
    for (int code : {0, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 99})
    {
        EXPECT_THAT(sent(host, static_cast<AcRx::AppMsgCode>(code)), IsEmpty()) << code;
    }
    gridApp().registerComponents();
    EXPECT_THAT(host.take(), IsEmpty());
}

class Stay : public netrax::AcRxArxApp
{
public:
    Stay(bool unlock, bool mdiAware)
    {
        m_unlock = unlock;
        m_mdiAware = mdiAware;
    }
    void registerComponents() override {}
};

TEST(ApplicationObject, tellsTheHostOnlyWhatItIs)
{
    HostCalls host;
    void* const packet = reinterpret_cast<void*>(0x80);
    Stay(false, true).initApp(packet);
    EXPECT_THAT(host.take(), ElementsAre(L"registerAppMDIAware 0x80", gridCommandAdded()));
    Stay(true, false).initApp(packet);
    EXPECT_THAT(host.take(), ElementsAre(L"unlockApplication 0x80", gridCommandAdded()));
}

TEST(EntryPoint, doesNotAttachWithoutTheRuntimesConsent)
{
    HostCalls host;
    host.extensionModulesAreRefused = true;
    const DWORD threadStarts = 2;
    EXPECT_TRUE(DllMain(attachedModule(), threadStarts, nullptr));
    EXPECT_FALSE(DllMain(attachedModule(), DLL_PROCESS_ATTACH, nullptr));
}

TEST(GridApp, loadsIntoAHostThatLacksItsServices)
{
    HostCalls host;
    host.registryIsEmpty = true;
    EXPECT_THAT(sent(host, AcRx::kInitAppMsg), IsEmpty());
    EXPECT_THAT(sent(host, AcRx::kUnloadAppMsg), IsEmpty());
}
}  // namespace
