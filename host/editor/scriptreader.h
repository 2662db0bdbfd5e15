// Script files by the CAD program's own rules.
#pragma once

#include <filesystem>
#include <string>

#include "host/editor/linefrontend.h"

namespace host
{
// A blank ends an answer as the line end does, and a further blank or an empty line is Enter.
// Between double quotes blanks belong to the answer, and the quotes are dropped. "^C" is Esc. A
// line that begins with ";" is a comment. Texts, message boxes and dialogs take the rest of the
// line as it stands. UTF-8, or UTF-16 behind its byte-order mark; the mark and carriage returns are
// dropped.
class ScriptReader : public AnswerReader
{
public:
    // Reads it all. Throws a ScriptError for other bytes.
    explicit ScriptReader(std::istream& input, const std::string& name = "script");

    Answer next(const Question& question) override;

private:
    void skipComments();
    std::string takeToken();
    std::string takeRestOfLine();

    std::string m_text;
    std::size_t m_at = 0;
};

// By the file's name: it ends in ".scr", in any letter case.
bool isHostScript(const std::filesystem::path& file);
}  // namespace host
