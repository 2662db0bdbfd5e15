// Guards the work of a person: asks before it is lost, and keeps in a file what was not saved.
#pragma once

#include <filesystem>

#include "host/editor/editor.h"

namespace host
{
// Notes that the open drawing is as its file has it, just opened or just saved. Without a person it
// does nothing.
void noteSaved(Editor& editor);
// Whether the drawing has changed since then.
bool isUnsaved();

// Asks whether QUIT may give up the changes; true without a question when there are none.
bool mayGiveUpChanges(Editor& editor);
// Asks whether a file that exists may be replaced; true without a question when it does not exist.
// Only a person is asked: a script names the files that it wants.
bool mayReplace(Editor& editor, const std::filesystem::path& file);
// Tells a person that the file is written [prints].
void tellSaved(Editor& editor, const std::filesystem::path& file);

// Saves the open drawing in a new file and reports where: beside the drawing, or in the user's
// folder for the state of programs, or in the folder for temporary files. It replaces no other
// file.
void keepUnsaved(Editor& editor);
// Tells a person which such files belong to the drawing [prints].
void tellKept(Editor& editor);
}  // namespace host
