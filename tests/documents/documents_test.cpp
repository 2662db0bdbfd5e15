#include <gtest/gtest.h>

#include "afxwin.h"
#include "axlock.h"
#include "dbapserv.h"
#include "host/documents/documentmanager.h"
#include "host/dxf/drawingfile.h"
#include "host/windows/modules.h"
#include "tests/support/session.h"

namespace
{
struct Listener : AcApDocManagerReactor
{
    Listener() { acDocManager->addReactor(this); }
    ~Listener() override { acDocManager->removeReactor(this); }

    void documentCreated(AcApDocument*) override { heard += "created "; }
    void documentActivated(AcApDocument*) override { heard += "activated "; }
    void documentToBeDestroyed(AcApDocument* document) override
    {
        heard += document->database() ? "goes " : "gone too early ";
    }
    void documentDestroyed(const ACHAR*) override { heard += "gone "; }
    void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode now,
                                 AcAp::DocLockMode, const ACHAR* command) override
    {
        const std::wstring name = command;
        heard += std::string(name.begin(), name.end()) + (now == AcAp::kWrite ? "+ " : "- ");
    }

    std::string heard;
};

HINSTANCE handle(char& where)
{
    return reinterpret_cast<HINSTANCE>(&where);
}

TEST(Documents, reactorHearsOfADocumentFromItsStartToItsEnd)
{
    Listener listener;
    {
        support::Session session;
    }
    EXPECT_EQ(listener.heard, "created activated goes gone ");
}

TEST(Documents, openDocumentIsTheCurrentOneAndItsDatabaseTheWorkingOne)
{
    EXPECT_EQ(acDocManager->curDocument(), nullptr);
    EXPECT_EQ(host::openDocument(), nullptr);
    {
        support::Session session;
        EXPECT_EQ(acDocManager->curDocument(), &session.document());
        EXPECT_EQ(host::openDocument(), &session.document());
        EXPECT_EQ(acDocManager->mdiActiveDocument(), &session.document());
        EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), &session.drawing());
    }
    EXPECT_EQ(acDocManager->curDocument(), nullptr);
    EXPECT_EQ(host::openDocument(), nullptr);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}

TEST(Documents, commandHasItsDocumentLockedForWriting)
{
    support::Session session;
    Listener listener;
    session.define(L"LOOK",
                   [] { EXPECT_EQ(acDocManager->curDocument()->lockMode(), AcAp::kWrite); });
    session.type({"look"});
    EXPECT_EQ(listener.heard, "LOOK+ LOOK- ");
    EXPECT_EQ(session.document().lockMode(), AcAp::kNotLocked);
}

TEST(Documents, sessionCommandRunsInApplicationContextWithoutALock)
{
    support::Session session;
    session.define(
        L"LOOK",
        []
        {
            EXPECT_TRUE(acDocManager->isApplicationContext());
            EXPECT_EQ(acDocManager->curDocument()->lockMode(), AcAp::kNotLocked);
        },
        ACRX_CMD_SESSION);
    session.type({"look"});
    session.run([] { EXPECT_FALSE(acDocManager->isApplicationContext()); });
    EXPECT_TRUE(acDocManager->isApplicationContext());
}

TEST(Documents, locksNestAndGoBackOneByOne)
{
    support::Session session;
    Listener listener;
    {
        const AcAxDocLock outer;
        EXPECT_EQ(outer.lockStatus(), Acad::eOk);
        const AcAxDocLock inner(&session.drawing());
        EXPECT_EQ(session.document().locks().depth(), 2u);
    }
    EXPECT_EQ(listener.heard, "+ + + - ");  // still locked when the inner one goes
    EXPECT_EQ(session.document().lockMode(), AcAp::kNotLocked);
}

TEST(Documents, lockOfAnotherDatabaseFails)
{
    support::Session session;
    const auto other = host::newDrawing();
    const AcAxDocLock lock(other.get());
    EXPECT_NE(lock.lockStatus(), Acad::eOk);
    EXPECT_EQ(session.document().lockMode(), AcAp::kNotLocked);
}

TEST(Documents, resourceHandlesNest)
{
    support::Session session;
    const HINSTANCE program = host::programInstance();
    host::ResourceStack& stack = session.document().resources();
    char one;
    const HINSTANCE before = AfxGetResourceHandle();
    stack.push(handle(one));
    acDocManager->pushResourceHandle(program);
    EXPECT_EQ(AfxGetResourceHandle(), program);
    acDocManager->popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), handle(one));
    stack.pop();
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(Documents, commandHasItsOwnResourcesWhileItRuns)
{
    support::Session session;
    static char own;
    const HINSTANCE before = AfxGetResourceHandle();
    session.define(
        L"LOOK", [] { EXPECT_EQ(AfxGetResourceHandle(), handle(own)); }, ACRX_CMD_MODAL,
        handle(own));
    session.type({"look"});
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(DocumentsDeathTest, popWithoutPushStopsTheRun)
{
    support::Session session;
    EXPECT_EXIT(acDocManager->popResourceHandle(), ::testing::ExitedWithCode(1),
                "popResourceHandle: no resource handle was pushed");
}

TEST(DocumentsDeathTest, commandThatKeepsAResourceHandleStopsTheRun)
{
    support::Session session;
    EXPECT_EXIT(session.run([] { acDocManager->pushResourceHandle(host::programInstance()); }),
                ::testing::ExitedWithCode(1), "pushResourceHandle: BODY did not leave");
}

TEST(DocumentsDeathTest, aHandleOfNoModuleStopsTheRun)
{
    support::Session session;
    char nobody;
    for (const HINSTANCE wrong : {HINSTANCE(nullptr), handle(nobody)})
    {
        EXPECT_EXIT(acDocManager->pushResourceHandle(wrong), ::testing::ExitedWithCode(1),
                    "pushResourceHandle: the handle is that of no loaded module");
    }
}

TEST(DocumentsDeathTest, commandThatPopsTheHostsResourceHandleStopsTheRun)
{
    support::Session session;
    static char own;
    session.define(
        L"POPS", [] { acDocManager->popResourceHandle(); }, ACRX_CMD_MODAL, handle(own));
    EXPECT_EXIT(session.type({"pops"}), ::testing::ExitedWithCode(1),
                "popResourceHandle: POPS did not leave");
}

TEST(DocumentsDeathTest, unlockWithoutALockStopsTheRun)
{
    support::Session session;
    EXPECT_EXIT(acDocManager->unlockDocument(&session.document()), ::testing::ExitedWithCode(1),
                "unlockDocument: the document is not locked");
}
}  // namespace
