// Reads script files by the CAD program's own rules.
#pragma once

#include <filesystem>
#include <string>

#include "host/editor/linefrontend.h"

namespace host
{
// Takes answers from a script. A blank ends an answer as a line end does; another blank or an empty
// line is Enter. Blanks between double quotes belong to the answer, and the quotes are dropped.
// "^C" is Esc. A line that begins with ";" is a comment. Texts, message boxes and dialogs take the
// rest of the line unchanged. Carriage returns are dropped.
class ScriptReader : public AnswerReader
{
public:
    // Creates a reader of a whole script in UTF-8, as scriptText returns it.
    explicit ScriptReader(std::string text);

    Answer next(const Question& question) override;

private:
    void skipComments();
    std::string takeToken();
    std::string takeRestOfLine();

    std::string m_text;
    std::size_t m_at = 0;
};

// Tells by the file's name whether the CAD program's rules apply: the name ends in ".scr", in any
// letter case.
bool isHostScript(const std::filesystem::path& file);
}  // namespace host
