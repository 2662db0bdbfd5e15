// Language of the product. It is the module's to follow; the host's own texts are English.
#pragma once

#include "windows.h"

namespace host
{
const LCID englishLocale = 0x0409;
const LCID russianLocale = 0x0419;

void setProductLocale(LCID locale);
}  // namespace host
