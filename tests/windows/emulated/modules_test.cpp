#include "host/windows/modules.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "afxwin.h"
#include "acui.h"
#include "host/windows/messagebox.h"
#include "host/windows/emulated/registration.h"
#include "host/windows/resourcechain.h"
#include "host/windows/text.h"
#include "rxdefs.h"

namespace
{
namespace fs = std::filesystem;

fs::path probe()
{
    return fs::read_symlink("/proc/self/exe").parent_path() / "probe.arx";
}

bool isLinked(HINSTANCE module)
{
    return std::ranges::count(host::linkedModules(), module) == 1;
}

// Loads the probe and hears what it tells.
class Modules : public testing::Test
{
protected:
    std::vector<std::wstring> m_told;
    std::wstring m_answeredNo;  // what the probe gets IDNO for
    void* m_library = nullptr;

    Modules()
    {
        host::setMessageBoxHandler(
            [this](const host::ShownBox& box)
            {
                m_told.push_back(box.text);
                return box.text == m_answeredNo ? IDNO : IDYES;
            });
    }
    ~Modules() override { host::setMessageBoxHandler(nullptr); }

    HINSTANCE load(const fs::path& path)
    {
        host::nameLoadingModule(path);
        m_library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        return host::attachLoadedModule();
    }
    std::vector<std::wstring> takeTold() { return std::exchange(m_told, {}); }
};

using Told = std::vector<std::wstring>;

TEST_F(Modules, attachAfterTheirStaticObjectsAreMadeAndDetachBeforeTheyGo)
{
    for (int loads = 0; loads < 2; ++loads)
    {
        const HINSTANCE module = load(probe());
        ASSERT_NE(module, nullptr) << dlerror();
        EXPECT_EQ(takeTold(),
                  (Told{L"first object made", L"second object made", L"local object made",
                        host::fromNativePath(probe().native()), L"attach"}));
        EXPECT_TRUE(isLinked(module));
        dlclose(m_library);
        EXPECT_EQ(takeTold(), (Told{L"detach", L"local object gone", L"second object gone",
                                    L"first object gone"}));
        EXPECT_FALSE(isLinked(module));
        EXPECT_EQ(host::modulePath(module), fs::path());
    }
}

TEST_F(Modules, areNotLoadedWhenTheyRefuse)
{
    m_answeredNo = L"attach";
    EXPECT_EQ(load(probe()), nullptr);
    ASSERT_NE(m_library, nullptr);
    takeTold();
    dlclose(m_library);
    EXPECT_EQ(takeTold()[0], L"detach");
}

TEST_F(Modules, areKnownByTheNameOfTheLinkThatWasLoaded)
{
    const fs::path folder = fs::path(testing::TempDir()) / ("modules." + std::to_string(getpid()));
    fs::create_directory(folder);
    const fs::path link = folder / "other.arx";
    fs::create_symlink(probe(), link);
    const HINSTANCE module = load(link);
    EXPECT_EQ(host::modulePath(module), link);
    EXPECT_EQ(m_told[3], host::fromNativePath(link.native()));
    dlclose(m_library);
    fs::remove_all(folder);
}

TEST_F(Modules, areKnownByTheirLoadersNameWhateverTheSystemCallsThem)
{
    host::nameLoadingModule("/somewhere/netrax.arx");
    m_library = dlopen(probe().c_str(), RTLD_NOW | RTLD_LOCAL);
    EXPECT_EQ(host::modulePath(host::attachLoadedModule()), "/somewhere/netrax.arx");
    dlclose(m_library);
}

TEST_F(Modules, haveAnAbsolutePathWhenNamedByARelativeOne)
{
    const fs::path former = fs::current_path();
    fs::current_path(probe().parent_path());
    const HINSTANCE module = load("./probe.arx");
    EXPECT_EQ(host::modulePath(module), probe().parent_path() / "./probe.arx");
    dlclose(m_library);
    fs::current_path(former);
}

TEST_F(Modules, openedByHandAttachAtOnce)
{
    m_library = dlopen(probe().c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(m_library, nullptr) << dlerror();
    EXPECT_EQ(std::ranges::count(m_told, L"attach"), 1);
    EXPECT_EQ(std::ranges::count(m_told, host::fromNativePath(probe().native())), 1);
    EXPECT_EQ(host::attachLoadedModule(), nullptr);
    dlclose(m_library);
}

TEST_F(Modules, thatDoNotComeAreNotAttached)
{
    EXPECT_EQ(load("/no/such/module.arx"), nullptr);
    EXPECT_EQ(m_library, nullptr);
    EXPECT_EQ(load("libm.so.6"), nullptr);  // a library without start-up code
    dlclose(m_library);
}

TEST_F(Modules, tellTheVersionOfTheInterfaceTheyWereBuiltWith)
{
    ASSERT_NE(load(probe()), nullptr) << dlerror();
    auto* version =
        reinterpret_cast<decltype(&acrxGetApiVersion)>(dlsym(m_library, "acrxGetApiVersion"));
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version(), ACRX_API_VERSION);
    EXPECT_EQ(dlsym(m_library, "DllMain"), nullptr);
    dlclose(m_library);
}

TEST_F(Modules, detachWhenTheProcessEndsWithThemInIt)
{
    const auto loadAndEnd = [this]
    {
        load(probe());
        host::setMessageBoxHandler(
            [](const host::ShownBox& box)
            {
                fprintf(stderr, "%s;", host::toUtf8(box.text).c_str());
                return IDYES;
            });
        std::exit(7);
    };
    EXPECT_EXIT(loadAndEnd(), testing::ExitedWithCode(7),
                "detach;.*second object gone;first object gone;");
}

TEST_F(Modules, mayNotRefuseWhenNobodyCanGiveThemUp)
{
    m_answeredNo = L"attach";
    EXPECT_EXIT(dlopen(probe().c_str(), RTLD_NOW | RTLD_LOCAL), testing::ExitedWithCode(1),
                "DllMain: refused");
}

TEST_F(Modules, mayNotLeaveWhileTheyAreInTheResourceChain)
{
    ASSERT_NE(load(probe()), nullptr);
    m_answeredNo = L"detach";
    EXPECT_EXIT(dlclose(m_library), testing::ExitedWithCode(1),
                "AfxTermExtensionModule: not called");
    m_answeredNo.clear();
    dlclose(m_library);
}

TEST(Program, isAModuleOfItsOwn)
{
    static const char here = 0;
    EXPECT_EQ(host::instanceHolding(&here), host::programInstance());
    EXPECT_EQ(host::modulePath(host::programInstance()), fs::read_symlink("/proc/self/exe"));
    EXPECT_EQ(host::modulePath(nullptr), host::modulePath(host::programInstance()));
    EXPECT_EQ(host::instanceHolding(reinterpret_cast<void*>(8)), nullptr);
}

TEST(Resources, areLookedUpInTheCurrentModuleThenInTheNewest)
{
    const auto older = reinterpret_cast<HINSTANCE>(16);
    const auto newer = reinterpret_cast<HINSTANCE>(32);
    const std::vector<HINSTANCE> before = host::linkedModules();
    AFX_EXTENSION_MODULE olderState = {NULL, NULL};
    AFX_EXTENSION_MODULE newerState = {NULL, NULL};
    EXPECT_TRUE(AfxInitExtensionModule(olderState, older));
    EXPECT_TRUE(AfxInitExtensionModule(newerState, newer));
    new CDynLinkLibrary(olderState);
    new CDynLinkLibrary(newerState);

    const HINSTANCE former = AfxGetResourceHandle();
    EXPECT_NE(former, nullptr);
    AfxSetResourceHandle(older);
    std::vector<HINSTANCE> chain = {older, newer, older};
    chain.insert(chain.end(), before.begin(), before.end());
    EXPECT_EQ(host::resourceChain(), chain);
    AfxSetResourceHandle(former);
    EXPECT_EQ(AfxGetResourceHandle(), former);

    AfxTermExtensionModule(olderState);
    EXPECT_FALSE(isLinked(older));
    EXPECT_TRUE(isLinked(newer));
    AfxTermExtensionModule(newerState);
    AfxTermExtensionModule(newerState);
    EXPECT_EQ(host::linkedModules(), before);
}

TEST(Resources, anExtensionModuleNeedsAHandle)
{
    AFX_EXTENSION_MODULE state = {NULL, NULL};
    EXPECT_FALSE(AfxInitExtensionModule(state, NULL));
    EXPECT_EXIT(CDynLinkLibrary library(state), testing::ExitedWithCode(1),
                "CDynLinkLibrary: made");
}

TEST(Resources, theDialogLibraryJoinsOnce)
{
    AFX_EXTENSION_MODULE state = {NULL, NULL};
    AfxInitExtensionModule(state, reinterpret_cast<HINSTANCE>(16));
    new CDynLinkLibrary(state);
    InitAcUiDLL();
    const std::vector<HINSTANCE> linked = host::linkedModules();
    InitAcUiDLL();
    EXPECT_EQ(host::linkedModules(), linked);
    AfxTermExtensionModule(state);
}
}  // namespace
