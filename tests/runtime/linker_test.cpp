#include "host/runtime/linker.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>

#include "host/documents/documentmanager.h"
#include "host/runtime/commandstack.h"
#include "tests/support/session.h"

namespace
{
namespace fs = std::filesystem;

fs::path moduleFile(const char* name)
{
    return fs::path(TEST_MODULES_DIR) / name;
}

// A separate folder, which is removed with the test.
struct Folder
{
    fs::path path =
        fs::temp_directory_path() / fs::path("arxhost_linker_" + std::to_string(::getpid()));
    Folder() { fs::create_directories(path); }
    ~Folder() { fs::remove_all(path); }
};

struct Loading : ::testing::Test
{
    ~Loading() override { host::linker().unloadAll(); }

    std::string load(const fs::path& file)
    {
        return session.run([&] { note(host::linker().load(file)); });
    }
    std::string unload(const fs::path& file)
    {
        return session.run([&] { note(host::linker().unload(file)); });
    }
    void note(const host::Result<>& result)
    {
        error = result ? std::nullopt : std::optional(result.failure().line);
    }

    support::Session session;
    std::optional<std::string> error;
};

TEST_F(Loading, tellsTheModuleThatItStartsAndThatADrawingIsOpen)
{
    EXPECT_EQ(load(moduleFile("polite.arx")), "<init><drawing in>");
    EXPECT_FALSE(error);
    EXPECT_EQ(unload(moduleFile("polite.arx")), "<drawing out><unload>");
    EXPECT_FALSE(error);
}

TEST_F(Loading, commandRunsWhileTheModuleIsLoadedOnly)
{
    load(moduleFile("polite.arx"));
    EXPECT_NE(session.type({"GREET"}).find("good morning"), std::string::npos);
    unload("polite");
    EXPECT_NE(session.type({"greet"}).find("Unknown command \"GREET\".  Press F1 for help."),
              std::string::npos);
}

TEST_F(Loading, secondLoadCountsAndUnloadByApiCountsBack)
{
    load(moduleFile("polite.arx"));
    EXPECT_EQ(load(moduleFile("polite.arx")), "");
    AcRxDynamicLinker* api = acrxDynamicLinker;
    EXPECT_TRUE(api->unloadModule(L"polite.arx"));
    EXPECT_NE(host::commandStack().findGlobal(L"greet"), nullptr);
    EXPECT_TRUE(api->unloadModule(L"polite.arx"));
    EXPECT_EQ(host::commandStack().findGlobal(L"greet"), nullptr);
    EXPECT_FALSE(api->unloadModule(L"polite.arx"));
}

TEST_F(Loading, fileThatWasReplacedMeanwhileIsTheOneThatLoads)
{
    const Folder folder;
    const fs::path file = folder.path / "greeter.arx";
    fs::copy_file(moduleFile("polite.arx"), file);
    load(file);
    EXPECT_NE(session.type({"greet"}).find("good morning"), std::string::npos);
    unload(file);
    ASSERT_FALSE(error) << *error;
    fs::remove(file);
    fs::copy_file(moduleFile("polite2.arx"), file);
    load("greeter");  // by its name: found where it was before
    ASSERT_FALSE(error) << *error;
    EXPECT_NE(session.type({"greet"}).find("good evening"), std::string::npos);
}

TEST_F(Loading, linkToAModuleIsAModuleInTheFolderOfTheLink)
{
    const Folder folder;
    fs::create_symlink(moduleFile("polite.arx"), folder.path / "link.arx");
    load(folder.path / "link.arx");
    ASSERT_FALSE(error) << *error;
    EXPECT_TRUE(acrxDynamicLinker->isAppMDIAware(L"link.arx"));
    EXPECT_FALSE(acrxDynamicLinker->isAppMDIAware(L"polite.arx"));
}

TEST_F(Loading, lockedModuleStays)
{
    load(moduleFile("locked.arx"));
    EXPECT_TRUE(acrxDynamicLinker->isApplicationLocked(L"locked.arx"));
    EXPECT_EQ(unload("locked.arx"), "");
    ASSERT_TRUE(error);
    EXPECT_EQ(*error, "locked.arx: the module is locked");
}

TEST_F(Loading, moduleMayRefuseToGo)
{
    load(moduleFile("refusesunload.arx"));
    unload("refusesunload.arx");
    ASSERT_TRUE(error);
    EXPECT_EQ(*error, "refusesunload.arx: the module refuses to be unloaded");
    EXPECT_FALSE(acrxDynamicLinker->isApplicationLocked(L"refusesunload.arx"));
}

TEST_F(Loading, moduleMayRefuseToCome)
{
    EXPECT_EQ(load(moduleFile("refusesload.arx")), "<init><unload>");
    ASSERT_TRUE(error);
    EXPECT_NE(error->find("refusesload.arx"), std::string::npos);
    unload("refusesload.arx");
    EXPECT_EQ(*error, "refusesload.arx: not loaded");
}

TEST_F(Loading, runningCommandKeepsItsModule)
{
    load(moduleFile("polite.arx"));
    host::commandStack().findGlobal(L"greet")->setRunning(true);
    unload("polite.arx");
    host::commandStack().findGlobal(L"greet")->setRunning(false);
    ASSERT_TRUE(error);
    EXPECT_EQ(*error, "polite.arx: a command of the module is running");
}

TEST_F(Loading, wrongFilesAreRefusedByName)
{
    struct Row
    {
        const char* file;
        const char* reason;
    };
    const Row rows[] = {
        {"nothing.arx", "there is no such module"},
        {"noversion.arx", "it does not show its entry points"},
        {"otherversion.arx", "made for another version of the host"},
    };
    for (const Row& row : rows)
    {
        load(moduleFile(row.file));
        ASSERT_TRUE(error) << row.file;
        EXPECT_NE(error->find(row.file), std::string::npos) << *error;
        EXPECT_NE(error->find(row.reason), std::string::npos) << *error;
    }
    const Folder folder;
    std::FILE* text = std::fopen((folder.path / "text.arx").string().c_str(), "w");
    std::fputs("not a module", text);
    std::fclose(text);
    load(folder.path / "text.arx");
    ASSERT_TRUE(error);
    EXPECT_NE(error->find("text.arx: not a module"), std::string::npos) << *error;
}

TEST_F(Loading, onlyThePacketOfTheModuleUnlocksIt)
{
    int other = 0;
    EXPECT_FALSE(acrxUnlockApplication(&other));
    EXPECT_FALSE(acrxDynamicLinker->registerAppMDIAware(nullptr));
}

TEST_F(Loading, lispFunctionsThatAreCommandsRun)
{
    load(moduleFile("lisp.arx"));
    EXPECT_NE(session.type({"ask"}).find("<call><asked 7>"), std::string::npos);
    EXPECT_NE(session.type({"TELL"}).find("<called 8>"), std::string::npos);
    unload("lisp.arx");
    EXPECT_NE(session.type({"ask"}).find("Unknown command"), std::string::npos);
}

TEST_F(Loading, staticReactorHearsOfTheDocumentAndGoesWithItsModule)
{
    load(moduleFile("listens.arx"));
    unload("listens.arx");
    EXPECT_FALSE(error);
    load(moduleFile("listens.arx"));
    testing::internal::CaptureStdout();
    host::documents().close();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "<document goes>");
}

using LoadingDeathTest = Loading;

TEST_F(LoadingDeathTest, commandLeftBehindStopsTheRun)
{
    load(moduleFile("leavescommand.arx"));
    EXPECT_EXIT(unload("leavescommand.arx"), ::testing::ExitedWithCode(1),
                "kUnloadAppMsg: leavescommand.arx did not remove a command");
    acedRegCmds->removeGroup(L"Greetings");
}

TEST_F(LoadingDeathTest, reactorLeftBehindStopsTheRun)
{
    EXPECT_EXIT(
        {
            load(moduleFile("leavesreactor.arx"));
            unload("leavesreactor.arx");
        },
        ::testing::ExitedWithCode(1), "removeReactor: leavesreactor.arx left a document reactor");
}
}  // namespace
