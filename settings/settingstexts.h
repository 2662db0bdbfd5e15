// What the settings dialog says, in both languages.
#pragma once

#include "hostapi/host.h"

// Of a length that can be picked. The prompt is a format for the length as it stands.
struct LengthTexts
{
    const wchar_t* prompt;
    const wchar_t* zero;    // alert: it may not be zero
    const wchar_t* notSet;  // alert: it is not given
};

struct StepTexts
{
    LengthTexts length;
    const wchar_t* tooBig;  // alert: bigger than the grid
};

struct SettingsTexts
{
    StepTexts vertStep;
    StepTexts horStep;
    LengthTexts crossSize;
    LengthTexts textHeight;
    const wchar_t* basePointPrompt;
    const wchar_t* xPrefixBanner;
    const wchar_t* yPrefixBanner;
};

// The texts in the language of the locale name (output/language.h). [borrowed] for good.
const SettingsTexts& settingsTextsFor(const CString& localeName);

// A caption that stands in Russian in the template, in English.
struct Caption
{
    int control;
    const wchar_t* text;
};

// Ended by a null text.
const Caption* englishCaptions();
const wchar_t* englishTitle();
