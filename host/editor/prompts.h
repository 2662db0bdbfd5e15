// Questions that commands ask. The prompts of the module's interface build on the same functions.
#pragma once

#include <optional>
#include <string>

#include "gepnt3d.h"
#include "host/editor/editor.h"
#include "host/editor/pointtext.h"

namespace host
{
// Asks once and returns any answer. A line that begins with an apostrophe starts a transparent
// command, and the question is asked again.
Answer askUser(Editor& editor, const Question& question);

// Asks for a line and returns it trimmed. Returns an empty text for Enter and no value for Esc.
std::optional<std::wstring> askLine(Editor& editor, Question::Kind kind,
                                    const std::wstring& prompt);

// Asks for an angle in degrees until the answer is a number. Returns `initial` for Enter and no
// value for Esc.
std::optional<double> askDegrees(Editor& editor, const std::wstring& prompt, double initial);

// Returns the typed point [ucs]. "@" is measured from `base` [ucs], or from the last point when
// `base` is null. A document must be open.
AcGePoint3d resolvePoint(const TypedPoint& typed, const AcGePoint3d* base);
}  // namespace host
