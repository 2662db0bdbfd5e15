// What a person would lose: questions before it, and a file for the work that was not saved.
#pragma once

#include <filesystem>

#include "host/editor/editor.h"

namespace host
{
// The open drawing is as its file has it: just opened, or just saved. Only with a person there.
void noteSaved(Editor& editor);
bool isUnsaved();  // since then

// Whether QUIT may give up what is not saved, if anything.
bool mayGiveUpChanges(Editor& editor);
// Whether the file may be written: there is none of that name, or it may be replaced. Only a person
// is asked; a script names the files that it wants.
bool mayReplace(Editor& editor, const std::filesystem::path& file);
// Tells a person that the file is there.
void tellSaved(Editor& editor, const std::filesystem::path& file);

// Keeps the open drawing in a file of its own and reports where. It stands beside the drawing, or
// in the user's folder for the state of programs, or in that for temporary files; it replaces no
// other.
void keepUnsaved(Editor& editor);
// Tells of the files of that kind that belong to the drawing.
void tellKept(Editor& editor);
}  // namespace host
