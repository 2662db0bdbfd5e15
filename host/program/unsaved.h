// Guards the work of a person: asks before it is lost, and keeps in a file what was not saved.
#pragma once

#include <filesystem>

#include "host/editor/editor.h"

namespace host
{
// Notes that the open drawing equals its file, after opening or saving. Without a person it does
// nothing.
void noteSaved(Editor& editor);
// Tells whether the drawing has changed since noteSaved.
bool isUnsaved();

// Asks whether QUIT may give up the changes. Returns true without a question for an unchanged
// drawing.
bool mayGiveUpChanges(Editor& editor);
// Asks whether a file that exists may be replaced; true without a question when it does not exist.
// Only a person is asked: a script names the files that it wants.
bool mayReplace(Editor& editor, const std::filesystem::path& file);
// Tells a person that the file has been saved [prints].
void tellSaved(Editor& editor, const std::filesystem::path& file);

// Saves the open drawing in a new file and reports where. The file lies beside the drawing, or else
// in the user's folder for the state of programs, or else in the folder for temporary files. It
// replaces no other file.
void keepUnsaved(Editor& editor);
// Names the files that keep earlier unsaved work on the drawing [prints].
void tellKept(Editor& editor);
}  // namespace host
