// The host's own texts, in the languages of its users.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "host/editor/editor.h"
#include "host/editor/owntexts.h"
#include "host/runtime/locale.h"
#include "host/windows/text.h"
#include "tests/support/session.h"

namespace
{
using host::OwnTextRow;
using host::ownTextRows;

std::vector<std::wstring> valuesIn(std::wstring_view text)
{
    std::vector<std::wstring> values;
    for (std::size_t at = text.find(L'%'); at != text.npos; at = text.find(L'%', at + 1))
    {
        values.emplace_back(text.substr(at, 2));
    }
    std::ranges::sort(values);
    return values;
}

bool hasCyrillic(std::wstring_view text)
{
    return std::ranges::any_of(text,
                               [](wchar_t letter) { return letter >= 0x400 && letter < 0x500; });
}

TEST(OwnTexts, holdTheSameValuesInBothLanguages)
{
    for (const OwnTextRow& row : ownTextRows)
    {
        EXPECT_EQ(valuesIn(row.english), valuesIn(row.russian)) << host::toUtf8(row.english);
    }
}

TEST(OwnTexts, areRussianForARussianReaderAndEnglishForAnEnglishOne)
{
    for (const OwnTextRow& row : ownTextRows)
    {
        EXPECT_TRUE(hasCyrillic(row.russian) || row.english == std::wstring(L"OK"))
            << host::toUtf8(row.russian);
        EXPECT_FALSE(hasCyrillic(row.english)) << host::toUtf8(row.english);
    }
}

TEST(OwnTexts, standInTheTableOnce)
{
    for (const OwnTextRow& row : ownTextRows)
    {
        const auto same = [&](const OwnTextRow& other)
        { return std::wstring(other.english) == row.english; };
        EXPECT_EQ(std::ranges::count_if(ownTextRows, same), 1) << host::toUtf8(row.english);
    }
}

class Reader : public support::Typist
{
public:
    explicit Reader(bool isPerson) : m_isPerson(isPerson) {}
    bool interactive() const override { return m_isPerson; }

private:
    bool m_isPerson;
};

std::wstring prompt(bool isPerson, LCID locale)
{
    Reader reader(isPerson);
    const host::Editor editor(reader, false);
    host::setProductLocale(locale);
    const std::wstring text = host::own(L"Enter new value for %1 <%2>: ", {L"UCSICON", L"3"});
    host::setProductLocale(host::englishLocale);
    return text;
}

TEST(OwnTexts, areTheSameForScriptsInEveryLanguage)
{
    const std::wstring english = L"Enter new value for UCSICON <3>: ";
    EXPECT_EQ(prompt(false, host::englishLocale), english);
    EXPECT_EQ(prompt(false, host::russianLocale), english);
    EXPECT_EQ(prompt(true, host::englishLocale), english);
    EXPECT_EQ(prompt(true, host::russianLocale), L"Новое значение UCSICON <3>: ");
}
}  // namespace
