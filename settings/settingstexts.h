// The texts of the settings dialog in both languages.
#pragma once

#include "hostapi/host.h"

// The texts about a length that can be picked.
struct LengthTexts
{
    const wchar_t* prompt;  // a format for the current length
    const wchar_t* zero;    // the alert for a length of zero
    const wchar_t* notSet;  // the alert for a missing length
};

// The texts about a step.
struct StepTexts
{
    LengthTexts length;
    const wchar_t* tooBig;  // the alert for a step that is larger than the grid
};

// All texts of one language.
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

// Returns the texts in the language of the locale name (output/language.h). They are [borrowed] as
// long as the module is loaded.
const SettingsTexts& settingsTextsFor(const CString& localeName);

// The English caption of a control whose caption in the template is Russian.
struct Caption
{
    int control;          // the id of the control
    const wchar_t* text;  // null after the last caption
};

// Returns the English captions [borrowed] as long as the module is loaded; an entry with a null
// text ends them.
const Caption* englishCaptions();

// Returns the English title of the dialog [borrowed] as long as the module is loaded.
const wchar_t* englishTitle();
