// What the prompts of the module's interface have in common.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "acedads.h"
#include "host/editor/owntexts.h"
#include "host/editor/prompts.h"

namespace host
{
// What a text is to a prompt that understands some of them.
struct Reading
{
    enum class State
    {
        taken,
        refused,  // understood, but against an option
        foreign
    };
    State state;
    std::optional<OwnText> complaint{};  // of a text that is not taken
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

// Takes the value out of a text that is no keyword. Of an empty text it says what is wrong with
// none.
using Reader = std::function<Reading(std::wstring_view)>;

// Reads typed points [ucs], measured from the base if there is one. Base and point [borrowed]
// outlive the reader.
Reader pointReader(const AcGePoint3d* base, AcGePoint3d& point);

// Asks until the answer is one that the options allow. Gives RTNORM for a value, else what the
// module gets; a keyword or other text is in the editor's input then.
int promptUntilTaken(Editor& editor, Question question, const PromptOptions& options,
                     const Reader& read);

// prompt and base may be null.
Question questionOf(Question::Kind kind, const ACHAR* prompt, const ads_real* base);

// Null when there is nobody to ask or nothing to draw in.
Editor* askingEditor();

// Sets the point [ucs] that "@" is measured from next.
void setLastPoint(const AcGePoint3d& point);
}  // namespace host
