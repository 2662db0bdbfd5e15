// Reads a dialog as a resource compiler describes it.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "host/headless/windowtree.h"

namespace host
{
// The windows that a template describes. They have no handles and parents yet.
struct DialogTemplate
{
    Window dialog;  // `place` is the place of the client area
    std::vector<Window> controls;
};

// Reads the extended form (DLGTEMPLATEEX). Converts dialog units to pixels by the size of "MS Shell
// Dlg" 8 on a screen of 96 dots to the inch, whatever font the template names. Returns no value
// when the bytes are not a complete template or name an unknown window class.
std::optional<DialogTemplate> readDialogTemplate(std::span<const std::byte> bytes);
}  // namespace host
