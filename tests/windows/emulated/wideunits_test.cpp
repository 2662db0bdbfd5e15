// Units wider than those of Windows, which a wchar_t can hold here.
#include <gtest/gtest.h>

#include "host/windows/text.h"

namespace
{
TEST(Text, aUnitThatIsAWholeCharacterIsWrittenAsSuch)
{
    EXPECT_EQ(host::toUtf8(L"\x1F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(host::toUtf8(L"\x110000"), "\xEF\xBF\xBD");
    EXPECT_EQ(host::toUtf8(L"\xFFFFFFFF"), "\xEF\xBF\xBD");
}
}  // namespace
