// The state that one run of the command carries from prompt to prompt.
#pragma once

#include "command/messages.h"
#include "settings/gridsettings.h"

// One run of the command. The settings begin with their defaults.
struct GridRun
{
    explicit GridRun(HINSTANCE module)
        : module(module), localeName(productLocaleName()), messages(&messagesFor(localeName))
    {
    }

    HINSTANCE module;          // [borrowed]; its resources hold the template of the dialog
    CString localeName;        // selects the language (output/language.h)
    const Messages* messages;  // [borrowed] as long as the module is loaded
    GridSettings settings;
};

// The size of a buffer for an answer, in characters. The host fills the buffer without being told
// its size. By the older guides the longest answer has 132 characters.
enum
{
    answerCapacity = 512
};
