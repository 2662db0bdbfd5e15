#include "host/headless/dialogtemplate.h"

#include <gtest/gtest.h>

#include <cstring>

#include "host/headless/windowclasses.h"
#include "tests/headless/testdialog.h"

using host::readDialogTemplate;
using support::Bytes;
using support::TemplateBuilder;

namespace
{
TemplateBuilder onlyControl(LPCWSTR className)
{
    return TemplateBuilder(L"Grid", 100, 50).control(7, className, 0, 0, 0, 10, 10, L"text");
}

TemplateBuilder everyKind()
{
    return TemplateBuilder(L"Настройки...", 331, 186)
        .control(101, L"Static", SS_LEFT, 7, 9, 40, 8, L"Шаг:")
        .control(102, L"Edit", ES_AUTOHSCROLL | WS_TABSTOP, 50, 7, 44, 12)
        .control(103, MAKEINTRESOURCEW(0x80), BS_AUTOCHECKBOX, 7, 22, 90, 10, L"odd")
        .creationData(Bytes(3))
        .control(-1, L"combobox", CBS_DROPDOWNLIST, 7, 36, 90, 80)
        .control(1, L"BUTTON", BS_DEFPUSHBUTTON, 7, 50, 50, 14, MAKEINTRESOURCEW(12));
}

// The bytes are in separate memory, so that a read beyond the end is one beyond the memory.
bool isRead(const Bytes& bytes, std::size_t size)
{
    const Bytes cut(bytes.begin(), bytes.begin() + std::ptrdiff_t(size));
    return readDialogTemplate(cut).has_value();
}

void overwrite(Bytes& bytes, std::size_t offset, WORD value)
{
    std::memcpy(bytes.data() + offset, &value, sizeof value);
}
}  // namespace

TEST(DialogTemplates, everythingWrittenIsRead)
{
    const auto read = readDialogTemplate(everyKind().bytes());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->dialog.text, L"Настройки...");
    ASSERT_EQ(read->controls.size(), 5U);
    const host::Window& label = read->controls[0];
    EXPECT_EQ(label.id, 101);
    EXPECT_EQ(label.text, L"Шаг:");
    EXPECT_EQ(read->controls[1].style, DWORD(ES_AUTOHSCROLL | WS_TABSTOP | WS_CHILD | WS_VISIBLE));
    EXPECT_EQ(read->controls[2].text, L"odd");
    EXPECT_EQ(read->controls[3].id, -1);
    EXPECT_EQ(read->controls[4].text, L"");  // a picture's number stands there
}

TEST(DialogTemplates, aTemplateWithoutFontIsRead)
{
    const auto read = readDialogTemplate(
        TemplateBuilder(L"", 10, 10, WS_POPUP).control(5, L"Edit", 0, 1, 2, 3, 4).bytes());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->controls[0].id, 5);
}

TEST(DialogTemplates, classesAreKnownByNameInAnyCaseAndByNumber)
{
    const struct
    {
        LPCWSTR given;
        LPCWSTR known;  // null: refused
    } rows[] = {
        {L"Button", L"Button"},
        {L"bUTTON", L"Button"},
        {L"EDIT", L"Edit"},
        {L"static", L"Static"},
        {L"ListBox", L"ListBox"},
        {L"ScrollBar", L"ScrollBar"},
        {L"ComboBox", L"ComboBox"},
        {MAKEINTRESOURCEW(0x80), L"Button"},
        {MAKEINTRESOURCEW(0x81), L"Edit"},
        {MAKEINTRESOURCEW(0x82), L"Static"},
        {MAKEINTRESOURCEW(0x83), L"ListBox"},
        {MAKEINTRESOURCEW(0x84), L"ScrollBar"},
        {MAKEINTRESOURCEW(0x85), L"ComboBox"},
        {MAKEINTRESOURCEW(0x7F), nullptr},
        {MAKEINTRESOURCEW(0x86), nullptr},
        {MAKEINTRESOURCEW(0), nullptr},
        {L"SysListView32", nullptr},
        {L"Buttons", nullptr},
        {L"", nullptr},
    };
    for (const auto& row : rows)
    {
        const TestDialog dialog(onlyControl(row.given));
        wchar_t name[32] = L"";
        GetClassNameW(dialog.control(7), name, 32);
        EXPECT_EQ(dialog.window != nullptr, row.known != nullptr) << &row - rows;
        EXPECT_STREQ(name, row.known != nullptr ? row.known : L"") << &row - rows;
    }
}

TEST(DialogTemplates, aClassOfItsOwnForTheDialogIsRefused)
{
    const Bytes plain = TemplateBuilder(L"", 10, 10, WS_POPUP).bytes();
    const std::size_t classOffset = 28;
    ASSERT_TRUE(readDialogTemplate(plain));
    for (const WORD first : {WORD(L'A'), WORD(0xFFFF)})  // a name "A", the number 0x80
    {
        Bytes bytes = plain;
        bytes.insert(bytes.begin() + classOffset, 2, std::byte(0));
        overwrite(bytes, classOffset, first);
        overwrite(bytes, classOffset + 2, first == 0xFFFF ? 0x80 : 0);
        EXPECT_FALSE(readDialogTemplate(bytes)) << first;
    }
}

TEST(DialogTemplates, aControlIsOneOfItsDialogEvenWithoutTheStyleForIt)
{
    Bytes bytes = TemplateBuilder(L"", 10, 10, WS_POPUP).control(5, L"Edit", 0, 0, 0, 9, 9).bytes();
    const std::size_t styleOffset = 40;
    overwrite(bytes, styleOffset + 2, 0);
    const auto read = readDialogTemplate(bytes);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->controls[0].style, DWORD(WS_CHILD));
}

TEST(DialogTemplates, dialogUnitsBecomePixelsRoundedHalfAwayFromZero)
{
    const struct
    {
        int x, y, width, height;
        RECT pixels;
    } rows[] = {
        {0, 0, 4, 8, {0, 0, 6, 13}},        {1, 1, 1, 1, {2, 2, 4, 4}},  // 1.5 and 1.625
        {3, 2, 5, 4, {5, 3, 13, 10}},                                    // 4.5, 3.25; 7.5, 6.5
        {-1, -4, 0, 0, {-2, -7, -2, -7}},   {-3, -1, 3, 1, {-5, -2, 0, 0}},
        {7, 5, 172, 62, {11, 8, 269, 109}}, {0, 0, 1000, 800, {0, 0, 1500, 1300}},
    };
    for (const auto& row : rows)
    {
        const auto read =
            readDialogTemplate(TemplateBuilder(L"", 331, 186)
                                   .control(1, L"Edit", 0, row.x, row.y, row.width, row.height)
                                   .bytes());
        ASSERT_TRUE(read);
        const RECT& place = read->controls[0].place;
        EXPECT_EQ(place.left, row.pixels.left);
        EXPECT_EQ(place.top, row.pixels.top);
        EXPECT_EQ(place.right, row.pixels.right);
        EXPECT_EQ(place.bottom, row.pixels.bottom);
        EXPECT_EQ(read->dialog.place.right, 497);  // 496.5
        EXPECT_EQ(read->dialog.place.bottom, 302);
    }
}

TEST(DialogTemplates, aTemplateCutAtAnyByteIsRefused)
{
    for (const Bytes& bytes : {everyKind().bytes(), TemplateBuilder(L"Grid", 10, 10).bytes(),
                               onlyControl(L"Edit").creationData(Bytes(5)).bytes()})
    {
        EXPECT_TRUE(isRead(bytes, bytes.size()));
        for (std::size_t size = 0; size < bytes.size(); ++size)
        {
            EXPECT_FALSE(isRead(bytes, size)) << size << " of " << bytes.size();
        }
    }
}

TEST(DialogTemplates, whatATemplateSaysOfItsSizeIsNotTrusted)
{
    const std::size_t markOffset = 2;
    const std::size_t countOffset = 16;
    const Bytes whole = onlyControl(L"Edit").bytes();
    const std::size_t creationDataOffset = whole.size() - 2;
    const struct
    {
        std::size_t offset;
        WORD value;
        bool read;
    } rows[] = {
        {0, 1, true},
        {0, 2, false},           // another version
        {markOffset, 0, false},  // the old form
        {countOffset, 0, true},
        {countOffset, 2, false},
        {countOffset, 0xFFFF, false},
        {creationDataOffset, 1, false},
        {creationDataOffset, 0xFFFF, false},
    };
    for (const auto& row : rows)
    {
        Bytes bytes = whole;
        overwrite(bytes, row.offset, row.value);
        EXPECT_EQ(isRead(bytes, bytes.size()), row.read) << &row - rows;
    }
}

TEST(DialogTemplates, noByteOfATemplateMakesItReadBeyondItsEnd)
{
    const Bytes whole = everyKind().bytes();
    for (std::size_t i = 0; i < whole.size(); ++i)
    {
        for (const int value : {0x00, 0x01, 0x7F, 0x80, 0xFF})
        {
            Bytes bytes = whole;
            bytes[i] = std::byte(value);
            const auto read = readDialogTemplate(bytes);
            EXPECT_LE(read ? read->controls.size() : 0, 5U);
        }
    }
}

TEST(DialogTemplates, aPointerThatIsNoResourceIsRefused)
{
    const Bytes bytes = everyKind().bytes();
    EXPECT_EQ(CreateDialogIndirectParamW(nullptr, bytes.data(), nullptr, nullptr, 0), nullptr);
    EXPECT_EQ(CreateDialogIndirectParamW(nullptr, nullptr, nullptr, nullptr, 0), nullptr);
}
