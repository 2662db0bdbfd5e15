// One showing of the settings dialog, with what the user does written down beforehand.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "settings/settingsdlg.h"
#include "tests/support/session.h"

struct DialogRun
{
    GridSettings settings{};  // given; afterwards what the dialog leaves
    double gridWidth = -1;    // not picked yet
    double gridHeight = -1;
    const wchar_t* locale = L"en-US";
    AcGeMatrix3d ucs = AcGeMatrix3d::kIdentity;
    INT_PTR result = 0;

    // In a drawing of its own, or in the one of the session; returns what was printed. Lines that
    // are left over or missing fail the test.
    std::string with(std::vector<std::string> lines);
    std::string with(support::Session& session, std::vector<std::string> lines);
};

// Lines written one after the other with " | " between them; none for an empty text; "<Enter>" is
// an empty line.
std::vector<std::string> typed(const std::string& lines);

// What `show` prints for the control; empty when it is not there.
std::string shown(const std::string& said, int control);
