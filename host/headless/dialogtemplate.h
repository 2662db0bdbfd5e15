// A dialog as a resource compiler writes it down.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "host/headless/windowtree.h"

namespace host
{
// Windows to be made, without handles and parents yet.
struct DialogTemplate
{
    Window dialog;  // its place is the client area
    std::vector<Window> controls;
};

// Reads the extended form (DLGTEMPLATEEX). Dialog units become pixels by the measures of "MS Shell
// Dlg" 8 on a screen of 96 dots to the inch, whatever font is named. Nothing for bytes that are no
// whole template and for classes of windows that are not known.
std::optional<DialogTemplate> readDialogTemplate(std::span<const std::byte> bytes);
}  // namespace host
