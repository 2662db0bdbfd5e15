// Pictures of dialogs, for documentation and for looking at them.
#pragma once

#include <optional>
#include <string>

#include "windows.h"
#include "winuser.h"

namespace host
{
// Draws the dialog as it stands, with its frame and caption, twice the size it has on a screen of
// 96 dots to the inch. PNG; an existing file is replaced. The reason when it cannot be written.
std::optional<std::string> drawDialog(HWND dialog, const std::string& file);
}  // namespace host
