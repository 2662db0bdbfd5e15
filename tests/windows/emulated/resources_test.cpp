#include "host/windows/emulated/moduleresources.h"

#include <gtest/gtest.h>

#include "afxwin.h"
#include "host/windows/modules.h"
#include "host/windows/emulated/resfile.h"
#include "tests/support/dialogtemplate.h"

namespace
{
using support::Bytes;
using support::GivenResources;
using support::ResourceFile;

// Sixteen texts, each with its length in front.
Bytes textBlock(std::vector<std::u16string> texts)
{
    texts.resize(16);
    Bytes bytes;
    const auto put = [&bytes](char16_t unit)
    {
        bytes.push_back(std::byte(unit & 0xFF));
        bytes.push_back(std::byte(unit >> 8));
    };
    for (const std::u16string& text : texts)
    {
        put(char16_t(text.size()));
        std::ranges::for_each(text, put);
    }
    return bytes;
}

std::wstring loaded(HINSTANCE module, UINT id, int size = 64)
{
    wchar_t text[64] = L"?";
    const int length = LoadStringW(module, id, text, size);
    EXPECT_EQ(std::wstring(text).size(), std::size_t(length));
    return text;
}

TEST(ModuleResources, textsAreFoundByTheirNumber)
{
    const HINSTANCE module = support::newModule();
    const Bytes block = textBlock({u"zero", u"", u"Сетка"});
    const GivenResources given(module, ResourceFile().add(RT_STRING, MAKEINTRESOURCEW(3), block));
    EXPECT_EQ(loaded(module, 32), L"zero");
    EXPECT_EQ(loaded(module, 33), L"");
    EXPECT_EQ(loaded(module, 34), L"Сетка");
    EXPECT_EQ(loaded(module, 34, 4), L"Сет");  // cut to the buffer
    EXPECT_EQ(loaded(module, 47), L"");
    EXPECT_EQ(loaded(module, 48), L"");  // no such block
}

TEST(ModuleResources, aBlockOfTextsThatIsCutHoldsNoTextBeyondItsEnd)
{
    const Bytes block = textBlock({u"zero", u"one", u"two"});
    for (std::size_t size = 0; size < block.size(); ++size)
    {
        const HINSTANCE module = support::newModule();
        const Bytes cut(block.begin(), block.begin() + std::ptrdiff_t(size));
        const GivenResources given(module, ResourceFile().add(RT_STRING, MAKEINTRESOURCEW(1), cut));
        EXPECT_EQ(loaded(module, 2), size >= 26 ? L"two" : L"") << size;
    }
}

TEST(ModuleResources, areFoundByTypeAndNameInAnyCase)
{
    const HINSTANCE module = support::newModule();
    const Bytes bytes(5, std::byte(7));
    const GivenResources given(module, ResourceFile().bitmap(L"Pick_Img", bytes));
    const HRSRC found = FindResourceW(module, L"PICK_IMG", RT_BITMAP);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(SizeofResource(module, found), 5u);
    const auto* first = static_cast<const std::byte*>(LockResource(LoadResource(module, found)));
    EXPECT_EQ(first[4], std::byte(7));
    EXPECT_EQ(host::resourceAt(first).size(), 5u);
    EXPECT_TRUE(host::resourceAt(first + 1).empty());
    EXPECT_EQ(FindResourceW(module, L"PICK_IMG", RT_DIALOG), nullptr);
    EXPECT_EQ(FindResourceW(module, L"PICK", RT_BITMAP), nullptr);
    EXPECT_EQ(FindResourceW(module, MAKEINTRESOURCEW(1), RT_BITMAP), nullptr);
    EXPECT_EQ(FindResourceW(support::newModule(), L"PICK_IMG", RT_BITMAP), nullptr);
}

TEST(ModuleResources, theModulesOwnOnesAreADialogABitmapAndAVersion)
{
    const HINSTANCE own = host::programInstance();
    EXPECT_NE(FindResourceW(own, MAKEINTRESOURCEW(104), RT_DIALOG), nullptr);
    EXPECT_NE(FindResourceW(own, L"PICKPT_IMG", RT_BITMAP), nullptr);
    EXPECT_NE(FindResourceW(own, MAKEINTRESOURCEW(1), RT_VERSION), nullptr);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(104), RT_DIALOG), own);
}

TEST(ModuleResources, ofAFileThatIsCutAreNotRead)
{
    const ResourceFile file = ResourceFile().bitmap(L"A", Bytes(7, std::byte(1)));
    const Bytes& bytes = file.bytes();
    EXPECT_EQ(host::readResFile(bytes)->back().bytes.size(), 7u);
    const std::size_t mark = 32;  // the empty entry that every such file begins with
    const std::size_t padding = bytes.size() % 4 == 0 ? 1 : 0;  // behind the last entry
    for (std::size_t size = mark + 1; size < bytes.size() - padding; ++size)
    {
        EXPECT_FALSE(host::readResFile(std::span(bytes).first(size))) << size;
    }
}

TEST(ModuleResourcesDeathTest, thatAreNotWholeEndTheRun)
{
    const Bytes junk(40, std::byte(0xFF));
    EXPECT_DEATH(host::setModuleResources(support::newModule(), junk),
                 "the module's resources are not whole");
}
}  // namespace
