// Buttons that find their picture in the modules' resources.
#include <gtest/gtest.h>

#include "host/dialogs/bitmapbutton.h"
#include "tests/dialogs/panel.h"
#include "tests/support/session.h"

using support::Bytes;
using support::ResourceFile;

namespace
{
const Bytes picture = {std::byte(40), std::byte(0), std::byte(7)};

struct Loading
{
    const wchar_t* name;  // given to the button
    const wchar_t* text;  // of its control
    int control;
    BOOL loaded;
    const wchar_t* afterwards;
};

const Loading loadings[] = {
    {nullptr, L"PICK_IMG|Pick a step", Panel::pick, TRUE, L"Pick a step"},
    {nullptr, L"pick_img|Pick|again", Panel::pick, TRUE, L"Pick|again"},  // the first bar
    {nullptr, L"PICK_IMG|", Panel::pick, TRUE, L""},
    {nullptr, L"OTHER|Pick", Panel::pick, FALSE, L"Pick"},
    {nullptr, L"|Pick", Panel::pick, FALSE, L"Pick"},
    {nullptr, L"PICK_IMG", Panel::pick, FALSE, L"PICK_IMG"},
    {nullptr, L"", Panel::pick, FALSE, L""},
    {L"PICK_IMG", L"A|B", Panel::pick, TRUE, L"A|B"},
    {L"OTHER", L"PICK_IMG|Pick", Panel::pick, FALSE, L"PICK_IMG|Pick"},
    {L"PICK_IMG", L"OK", IDOK, FALSE, L"OK"},  // it draws itself
};

TEST(BitmapButtons, loadTheirPictureByName)
{
    const HINSTANCE module = support::newModule();
    const support::GivenResources given(module, ResourceFile().bitmap(L"PICK_IMG", picture));
    AFX_EXTENSION_MODULE state = {nullptr, nullptr};
    AfxInitExtensionModule(state, module);
    new CDynLinkLibrary(state);
    for (const Loading& row : loadings)
    {
        Panel panel;
        panel.onInit = [&]
        {
            CAdUiBitmapButton button(row.name);
            button.Attach(::GetDlgItem(panel.m_hWnd, row.control));
            button.SetWindowText(row.text);
            EXPECT_EQ(button.bitmap(), nullptr);
            EXPECT_EQ(button.AutoLoad(), row.loaded) << row.text;
            EXPECT_EQ(panel.text(row.control), row.afterwards);
            const auto bytes = host::bitmapOfButton(button.m_hWnd);
            EXPECT_EQ(Bytes(bytes.begin(), bytes.end()), row.loaded ? picture : Bytes());
        };
        support::Session session;
        session.run([&] { panel.DoModal(); }, {"^C"});
    }
    AfxTermExtensionModule(state);
}

TEST(BitmapButtons, sizeThemselvesUnlessToldOtherwise)
{
    CAdUiBitmapButton button;
    EXPECT_TRUE(button.GetAutoSizeToBitmap());
    button.SetAutoSizeToBitmap(FALSE);
    EXPECT_FALSE(button.GetAutoSizeToBitmap());
}

TEST(BitmapButtons, anOrdinaryButtonHasNoPicture)
{
    Panel panel;
    panel.onInit = [&]
    {
        EXPECT_TRUE(host::bitmapOfButton(::GetDlgItem(panel.m_hWnd, Panel::pick)).empty());
        EXPECT_TRUE(host::bitmapOfButton(nullptr).empty());
    };
    support::Session session;
    session.run([&] { panel.DoModal(); }, {"^C"});
}
}  // namespace
