// Protects a person's work: asks before it is lost, and saves unsaved work to a file.
#pragma once

#include <filesystem>

#include "host/editor/editor.h"

namespace host
{
// Records that the open drawing equals its file, after opening or saving. Without a person the
// function does nothing.
void noteSaved(Editor& editor);
// Tells whether the drawing has changed since noteSaved.
bool isUnsaved();

// Asks whether QUIT may discard the changes. Returns true without a question for an unchanged
// drawing.
bool mayGiveUpChanges(Editor& editor);
// Asks whether an existing file may be replaced. Returns true without a question when the file does
// not exist. Only a person is asked: a script names the files that it wants.
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
