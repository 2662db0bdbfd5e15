// The loop that all prompts of the module's interface share.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "acedads.h"
#include "host/editor/owntexts.h"
#include "host/editor/prompts.h"

namespace host
{
// The result of reading a text that was typed at a prompt.
struct Reading
{
    enum class State
    {
        taken,
        refused,  // the text is a value that an option forbids
        foreign   // the text is not a value of the prompt's kind
    };
    State state;
    std::optional<OwnText> complaint{};  // what to print for a text that is not taken
};

const Reading taken{Reading::State::taken};

inline Reading refused(OwnText complaint)
{
    return {Reading::State::refused, complaint};
}
inline Reading foreign(OwnText complaint)
{
    return {Reading::State::foreign, complaint};
}

// Parses text that matched no keyword; for empty text, returns the complaint to print.
using Reader = std::function<Reading(std::wstring_view)>;

// Returns a reader of points [ucs]. "@" is measured from the base, or from the last point when the
// base is null. Base and point [borrowed] outlive the reader, which stores each result in `point`.
Reader pointReader(const AcGePoint3d* base, AcGePoint3d& point);

// Asks until the options allow the answer [prints]. Returns RTNORM for a value, which `read` has
// stored; RTNONE for Enter; RTCAN for Esc; RTKWORD for a keyword or other text, which becomes the
// editor's last input.
int promptUntilTaken(Editor& editor, Question question, const PromptOptions& options,
                     const Reader& read);

// Builds a question. The prompt and the base [ucs] may be null.
Question questionOf(Question::Kind kind, const ACHAR* prompt, const ads_real* base);

// Returns the editor [borrowed], or null when there is no command line or no document.
Editor* askingEditor();

// Sets the point [ucs] from which the next "@" is measured. A document must be open.
void setLastPoint(const AcGePoint3d& point);
}  // namespace host
