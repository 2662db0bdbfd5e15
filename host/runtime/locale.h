// Sets the language of the product, which the module uses. The host uses it for its own texts only
// when a person reads them; scripts get English.
#pragma once

#include "windows.h"

namespace host
{
const LCID englishLocale = 0x0409;
const LCID russianLocale = 0x0419;

void setProductLocale(LCID locale);
}  // namespace host
