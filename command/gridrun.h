// What one run of the command carries from prompt to prompt.
#pragma once

#include "command/messages.h"
#include "settings/gridsettings.h"

// The settings start as the defaults.
struct GridRun
{
    explicit GridRun(HINSTANCE module)
        : module(module), localeName(productLocaleName()), messages(&messagesFor(localeName))
    {
    }

    HINSTANCE module;  // holds the template of the dialog
    CString localeName;
    const Messages* messages;  // [borrowed] for good
    GridSettings settings;
};

// Room for an answer: the host fills a caller's buffer whose size it is never told, and its longest
// answer has 132 characters by the older guides.
enum
{
    answerCapacity = 512
};
