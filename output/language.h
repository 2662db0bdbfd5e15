// The two languages that the user reads: Russian and English.
#pragma once

#include "hostapi/host.h"

// Returns whether a locale name selects Russian: "ru-RU" in any letter case does, any other name
// selects English.
bool isRussian(const CString& localeName);
