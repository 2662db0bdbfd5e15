// Questions that commands ask; those of the module's interface are built on the same parts.
#pragma once

#include <optional>
#include <string>

#include "gepnt3d.h"
#include "host/editor/editor.h"
#include "host/editor/pointtext.h"

namespace host
{
// One answer, whatever it is. A line with an apostrophe before it starts a transparent command,
// and the question is asked again.
Answer askUser(Editor& editor, const Question& question);

// The line, trimmed; empty for Enter, nothing for Esc.
std::optional<std::wstring> askLine(Editor& editor, Question::Kind kind,
                                    const std::wstring& prompt);

// The number of degrees; `initial` for Enter, nothing for Esc. Asks until it is one.
std::optional<double> askDegrees(Editor& editor, const std::wstring& prompt, double initial);

// Returns the typed point [ucs]. "@" is measured from `base`, or from the last point when it is
// null.
AcGePoint3d resolvePoint(const TypedPoint& typed, const AcGePoint3d* base);
}  // namespace host
