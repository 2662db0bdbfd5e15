// Selects one of the two languages of the texts: Russian or English.
#pragma once

#include "hostapi/host.h"

// Returns whether a locale name selects Russian. "ru-RU" in any letter case selects Russian; any
// other name selects English.
bool isRussian(const CString& localeName);
