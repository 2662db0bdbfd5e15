#include "host/runtime/locale.h"

#include <gtest/gtest.h>

#include "rxregsvc.h"

namespace
{
TEST(ProductLocale, isThatOfTheLanguageThatWasChosen)
{
    EXPECT_EQ(acrxProductLCID(), 0x0409u);
    host::setProductLocale(host::russianLocale);
    EXPECT_EQ(acrxProductLCID(), 0x0419u);
    host::setProductLocale(host::englishLocale);
    EXPECT_EQ(acrxProductLCID(), 0x0409u);
}
}  // namespace
