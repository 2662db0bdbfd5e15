#include "app/docdata.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/documents/documentmanager.h"
#include "host/runtime/linker.h"
#include "tests/app/hostcalls.h"
#include "tests/support/session.h"

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

AcApDocument* const first = reinterpret_cast<AcApDocument*>(0x100);
AcApDocument* const second = reinterpret_cast<AcApDocument*>(0x200);

TEST(DocumentData, isHeardByTheDocumentManagerAsLongAsItLives)
{
    HostCalls host;
    {
        netrax::AcApDataManager<CDocData> manager;
        EXPECT_THAT(host.reactors, ElementsAre(&manager));
    }
    EXPECT_THAT(host.reactors, IsEmpty());
}

// The manager of the records is the module's only listener, and it is static: it exists before any
// message, and no call removes it.
TEST(DocumentData, comesAndGoesWithTheModule)
{
    support::Session session;
    const auto module =
        std::filesystem::read_symlink("/proc/self/exe").replace_filename("netrax.arx");
    const std::vector<const void*> before = host::linker().listeners();
    for (int loads = 0; loads < 2; ++loads)
    {
        session.run([&] { EXPECT_TRUE(host::linker().load(module)); });
        EXPECT_EQ(host::linker().listeners().size(), before.size() + 1);
        session.run([&] { EXPECT_TRUE(host::linker().unload(module)); });
        EXPECT_EQ(host::linker().listeners(), before);
    }
}

TEST(DocumentData, livesWithoutADocumentManager)
{
    HostCalls host;
    host.documentManagerIsMissing = true;
    netrax::AcApDataManager<int> manager;
    EXPECT_EQ(manager.dataOf(first), 0);
}

TEST(DocumentData, laterDocumentAtTheSameAddressStartsAnew)
{
    HostCalls host;
    netrax::AcApDataManager<int> manager;
    manager.dataOf(first) = 1;
    manager.dataOf(second) = 2;
    AcApDocManagerReactor& reactor = manager;

    reactor.documentToBeDestroyed(first);
    EXPECT_EQ(manager.dataOf(first), 0);
    EXPECT_EQ(manager.dataOf(second), 2);

    reactor.documentToBeDestroyed(reinterpret_cast<AcApDocument*>(0x300));
    EXPECT_EQ(manager.dataOf(second), 2);
}
}  // namespace
