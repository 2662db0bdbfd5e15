// The check boxes around the drawn frame and the options they stand for.
#pragma once

#include "settings/gridsettings.h"

struct LabelFlag
{
    int button;
    int GridSettings::*field;
};

// Ended by a button 0.
const LabelFlag* labelFlags();
