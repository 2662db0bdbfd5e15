#include "app/docdata.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/hostcalls.h"

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
        AcApDataManager<CDocData> manager;
        EXPECT_THAT(host.reactors, ElementsAre(&manager));
    }
    EXPECT_THAT(host.reactors, IsEmpty());
}

TEST(DocumentData, livesWithoutADocumentManager)
{
    HostCalls host;
    host.documentManagerIsMissing = true;
    AcApDataManager<int> manager;
    EXPECT_EQ(manager.dataOf(first), 0);
}

TEST(DocumentData, laterDocumentAtTheSameAddressStartsAnew)
{
    HostCalls host;
    AcApDataManager<int> manager;
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
