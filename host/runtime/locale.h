// Language of the product. The module follows it. The host's own texts follow it only for a person
// who reads along; scripts get English.
#pragma once

#include "windows.h"

namespace host
{
const LCID englishLocale = 0x0409;
const LCID russianLocale = 0x0419;

void setProductLocale(LCID locale);
}  // namespace host
