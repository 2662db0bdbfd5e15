// The texts that the command prints, in both languages.
#pragma once

#include "hostapi/host.h"

// The texts of one language. A format takes the values named beside it.
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

// Returns the locale name of the host product, or "en-US" when the host has no locale name.
CString productLocaleName();

// Returns the texts in the language of the locale name (output/language.h). They are [borrowed] as
// long as the module is loaded.
const Messages& messagesFor(const CString& localeName);
