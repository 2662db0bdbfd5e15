// What a drawing keeps beside its objects: view, coordinate systems, variables.
#pragma once

#include <map>
#include <string>
#include <variant>

#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace host
{
// Value of a drawing variable, in the unit of the drawing file's header (angles there are as
// stored).
using VariableValue = std::variant<int, double, AcGePoint3d, std::wstring>;

// The model space viewport. Points and directions are [wcs].
struct View
{
    AcGeVector3d direction{0, 0, 1};  // from the target to the camera, any length but 0
    double twist = 0;                 // [rad], counter-clockwise; any value, as it was read
    AcGePoint3d target;
    double centreX = 0;  // in display coordinates
    double centreY = 0;
    double height = 297;  // drawing units
    double aspect = 1.4;
};

struct Ucs
{
    AcGeMatrix3d toWorld;  // [wcs]; its columns are the X, Y and Z axis and the origin
    std::wstring name;     // empty for an unnamed one and for the world
};

struct DrawingState
{
    View view;
    Ucs modelUcs;
    Ucs paperUcs;
    int ucsIcon = 3;
    int ucsFollow = 0;
    bool paperSpace = false;  // a layout is current (TILEMODE 0)
    // Header variables by their name in capitals, without "$"; every one that the file held and
    // every one that was set. UCS, view and the current layer, style, colour and linetype are not
    // read from here.
    std::map<std::wstring, VariableValue> variables;

    Ucs& ucs() { return paperSpace ? paperUcs : modelUcs; }
    const Ucs& ucs() const { return paperSpace ? paperUcs : modelUcs; }
};
}  // namespace host
