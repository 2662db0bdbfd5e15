// What the command says, in both languages.
#pragma once

#include "hostapi/host.h"

struct Messages
{
    const wchar_t* firstCornerPrompt;
    const wchar_t* otherCornerPrompt;
    const wchar_t* acceptPrompt;
    const wchar_t* applyKeyword;
    const wchar_t* settingsKeyword;
    const wchar_t* summary;         // format: HorStep, VertStep, Color, appearance text
    const wchar_t* continuousLine;  // appearance text
    const wchar_t* crossMark;       // appearance text, format: crossSize
    const wchar_t* saveFailed;
};

// Locale name of the host product, "en-US" when the host has none.
CString productLocaleName();

// The texts in the language of the locale name (output/language.h). [borrowed] for good.
const Messages& messagesFor(const CString& localeName);
