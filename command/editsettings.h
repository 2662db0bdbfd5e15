// The settings dialog, as the command opens it.
#pragma once

#include "settings/gridsettings.h"

// Lets the user change the settings. True: the user confirmed and the settings hold the new values;
// false: they are untouched.
//
// gridWidth and gridHeight: the picked rectangle's sides in drawing units, -1.0 each when it is not
// picked yet. localeName: "ru-RU" in any case selects Russian, anything else English.
bool editSettings(GridSettings& settings, double gridWidth, double gridHeight,
                  const CString& localeName);
