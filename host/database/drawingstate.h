// The state of a drawing beside its objects: view, coordinate systems and variables.
#pragma once

#include <map>
#include <string>
#include <variant>

#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace host
{
// The value of a drawing variable, in the unit of the drawing file's header. An angle is kept as
// the file stores it.
using VariableValue = std::variant<int, double, AcGePoint3d, std::wstring>;

// The model space viewport. Points and directions are [wcs].
struct View
{
    AcGeVector3d direction{0, 0, 1};  // from the target to the camera; any length but 0
    double twist = 0;                 // [rad], counter-clockwise; any value, as read
    AcGePoint3d target;
    double centreX = 0;  // in display coordinates
    double centreY = 0;
    double height = 297;  // drawing units
    double aspect = 1.4;
};

struct Ucs
{
    AcGeMatrix3d toWorld;  // [ucs] to [wcs]; the columns are the axes X, Y, Z and the origin
    std::wstring name;     // empty for an unnamed system and for the world
};

struct DrawingState
{
    View view;
    Ucs modelUcs;
    Ucs paperUcs;
    int ucsIcon = 3;
    int ucsFollow = 0;
    bool paperSpace = false;  // a layout is current (TILEMODE 0)
    // The header variables by their names in capitals, without "$": every variable that the file
    // held or that was set. UCS, view, current layer, style, colour and linetype have members of
    // their own instead.
    std::map<std::wstring, VariableValue> variables;

    // Return the UCS of the current space [borrowed], which lives as long as this object.
    Ucs& ucs() { return paperSpace ? paperUcs : modelUcs; }
    const Ucs& ucs() const { return paperSpace ? paperUcs : modelUcs; }
};
}  // namespace host
