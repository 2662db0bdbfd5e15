#include "host/pictures/dialogpicture.h"

#include <gtest/gtest.h>

#include "host/dialogs/bitmapbutton.h"
#include "host/dialogs/controlview.h"
#include "host/dialogs/modalloop.h"
#include "host/dialogs/wnd.h"
#include "host/pictures/bitmap.h"
#include "host/pictures/canvas.h"
#include "tests/settings/dialogrun.h"

namespace
{
using host::ControlKind;

// Shows the settings dialog, with everything enabled, and looks at it as it closes.
void whileShown(const wchar_t* locale, const std::function<void(HWND)>& look)
{
    int looked = 0;
    const host::DialogObserver observer(
        [&](HWND dialog)
        {
            ++looked;
            look(dialog);
        });
    DialogRun run{.locale = locale};
    run.settings.LookType = 1;
    run.settings.needText = 1;
    run.settings.basePoint.set(-1000000, -1000000, 0);
    run.with({"^C"});
    EXPECT_EQ(looked, 1);
}

struct Placed
{
    int id;
    ControlKind kind;
    RECT place;
    std::wstring text;
};

std::vector<Placed> controlsOf(HWND dialog)
{
    std::vector<Placed> controls;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        RECT place{};
        GetWindowRect(child, &place);
        const ControlKind kind = host::kindOf(child);
        if (kind == ControlKind::combo)
        {
            place.bottom = place.top + 20;  // closed
        }
        controls.push_back({GetDlgCtrlID(child), kind, place, host::windowText(child)});
    }
    return controls;
}

// Returns the width that the control needs beside its text.
int roomBeside(ControlKind kind)
{
    switch (kind)
    {
        case ControlKind::check:
        case ControlKind::radio:
            return 17;
        case ControlKind::group:
            return 18;
        case ControlKind::combo:
            return 44;
        case ControlKind::label:
            return 0;
        default:
            return 8;
    }
}

bool showsItsText(HWND dialog, const Placed& control)
{
    return host::bitmapOfButton(GetDlgItem(dialog, control.id)).empty();
}

TEST(DialogPicture, everyTextFitsItsControlInBothLanguages)
{
    const host::Canvas canvas(1, 1, 1);
    for (const wchar_t* locale : {L"en-US", L"ru-RU"})
    {
        const auto look = [&](HWND dialog)
        {
            for (const Placed& control : controlsOf(dialog))
            {
                const double width = control.place.right - control.place.left;
                const double needed = canvas.textWidth(control.text) + roomBeside(control.kind);
                if (!control.text.empty() && showsItsText(dialog, control))
                {
                    EXPECT_LE(needed, width) << control.id;
                    EXPECT_LE(canvas.textHeight(), control.place.bottom - control.place.top + 1);
                }
            }
        };
        whileShown(locale, look);
    }
}

bool overlap(const RECT& a, const RECT& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool contains(const RECT& outer, const RECT& inner)
{
    return outer.left <= inner.left && inner.right <= outer.right && outer.top <= inner.top &&
           inner.bottom <= outer.bottom;
}

// Group boxes hold others, the lines of the drawn frame cross.
bool standsAlone(const Placed& control)
{
    return control.kind != ControlKind::group && control.kind != ControlKind::line;
}

TEST(DialogPicture, noControlOverlapsAnotherOrTheEdge)
{
    const auto look = [](HWND dialog)
    {
        RECT whole{};
        GetWindowRect(dialog, &whole);
        const std::vector<Placed> controls = controlsOf(dialog);
        for (const Placed& a : controls)
        {
            EXPECT_TRUE(contains(whole, a.place)) << a.id;
            for (const Placed& b : controls)
            {
                const bool apart = a.id == b.id || !standsAlone(a) || !standsAlone(b);
                EXPECT_TRUE(apart || !overlap(a.place, b.place)) << a.id << " " << b.id;
                const bool boxes = a.kind == ControlKind::group && b.kind == ControlKind::group;
                EXPECT_TRUE(!boxes || a.id == b.id || !overlap(a.place, b.place)) << a.id;
                const bool inBox = a.kind == ControlKind::group && overlap(a.place, b.place);
                EXPECT_TRUE(!inBox || boxes || contains(a.place, b.place)) << a.id << " " << b.id;
            }
        }
    };
    whileShown(L"ru-RU", look);
}

TEST(DialogPicture, everyPickButtonHasItsPicture)
{
    const auto look = [](HWND dialog)
    {
        for (const int id : {110, 111, 118, 124, 134})
        {
            const host::Image image =
                host::imageOfBitmap(host::bitmapOfButton(GetDlgItem(dialog, id)));
            ASSERT_TRUE(image) << id;
            EXPECT_EQ(cairo_image_surface_get_width(image.get()), 16);
        }
    };
    whileShown(L"en-US", look);
}

TEST(DialogPicture, isAPngThatShowsTheLanguage)
{
    std::vector<std::string> pictures;
    for (const wchar_t* locale : {L"en-US", L"ru-RU", L"ru-RU"})
    {
        whileShown(locale, [&](HWND dialog) { pictures.push_back(*host::drawDialog(dialog)); });
        EXPECT_TRUE(pictures.back().starts_with("\x89PNG\r\n"));
    }
    EXPECT_NE(pictures[0], pictures[1]);
    EXPECT_EQ(pictures[1], pictures[2]);
}

std::span<const std::byte> bytesOf(const std::string& text)
{
    return std::as_bytes(std::span(text.data(), text.size()));
}

TEST(BitmapOfResources, cutOrStrangeOnesAreRefused)
{
    std::string bytes(40 + 8 + 8, '\0');
    bytes[0] = 40;
    bytes[4] = 2;    // width
    bytes[8] = 2;    // height
    bytes[14] = 24;  // bits
    bytes.resize(40 + 16);
    EXPECT_TRUE(host::imageOfBitmap(bytesOf(bytes)));
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        EXPECT_FALSE(host::imageOfBitmap(bytesOf(bytes.substr(0, size)))) << size;
    }
    for (const auto& [at, value] :
         {std::pair(0, 41), {4, 0}, {7, 127}, {8, 0}, {11, 127}, {14, 16}, {16, 1}, {34, 127}})
    {
        std::string strange = bytes;
        strange[at] = char(value);
        EXPECT_FALSE(host::imageOfBitmap(bytesOf(strange))) << at;
    }
}
}  // namespace
