// Shows the settings dialog once, with the user's actions given in advance.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "settings/settingsdlg.h"
#include "tests/support/session.h"

struct DialogRun
{
    GridSettings settings{};  // the given settings; afterwards the settings that the dialog leaves
    double gridWidth = -1;    // -1: the rectangle is not picked yet
    double gridHeight = -1;
    const wchar_t* locale = L"en-US";
    AcGeMatrix3d ucs = AcGeMatrix3d::kIdentity;
    INT_PTR result = 0;

    // Shows the dialog in a new drawing, or in that of the session, and returns the printed text.
    // Lines that are left over or missing fail the test.
    std::string with(std::vector<std::string> lines);
    std::string with(support::Session& session, std::vector<std::string> lines);
};

// Splits lines at " | ". Returns no lines for an empty text; "<Enter>" is an empty line.
std::vector<std::string> typed(const std::string& lines);

// Returns what `show` prints for the control, or an empty text when the control does not exist.
std::string shown(const std::string& said, int control);
