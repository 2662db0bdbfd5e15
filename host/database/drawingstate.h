// The state of a drawing beside its objects: view, coordinate systems and variables.
#pragma once

#include <cstring>
#include <map>
#include <string>
#include <variant>

#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"
#include "host/geometry/finite.h"

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

// The matrix of a coordinate system. Every end of every line of a grid is converted, so the matrix
// is compared with the identity only once. The matrix is [borrowed] as long as this object lives.
class Frame
{
public:
    Frame() = default;
    Frame(const AcGeMatrix3d& matrix)
        : m_matrix(matrix),
          m_isIdentity(std::memcmp(matrix.entry, AcGeMatrix3d().entry, sizeof matrix.entry) == 0)
    {
    }

    operator const AcGeMatrix3d&() const { return m_matrix; }
    const AcGeMatrix3d* operator->() const { return &m_matrix; }
    // Tells whether the matrix is the identity to the last bit and the point is finite. The image
    // of the point is the point itself then, except that a negative zero becomes positive.
    bool leaves(const AcGePoint3d& point) const { return m_isIdentity && isFinite(point); }

private:
    AcGeMatrix3d m_matrix;
    bool m_isIdentity = true;
};

struct Ucs
{
    Frame toWorld;      // [ucs] to [wcs]; the columns are the axes X, Y, Z and the origin
    std::wstring name;  // empty for an unnamed system and for the world
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
