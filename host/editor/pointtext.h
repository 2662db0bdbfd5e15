// Reads points as they are typed.
#pragma once

#include <optional>
#include <string_view>

#include "gepnt3d.h"

namespace host
{
// A typed point whose origin is not known yet. The coordinates are in drawing units.
struct TypedPoint
{
    AcGePoint3d coordinates;
    bool hasZ = false;
    bool relative = false;  // typed with "@": measured from the base or the last point
    bool world = false;     // typed with "*": [wcs]; otherwise [ucs]
};

// Parses "x,y", "x,y,z" or "dist<angle" with the angle in degrees. Each form may begin with "@" or
// "*"; "@" alone is the last point. Blanks around coordinates are ignored. Returns no value for any
// other text.
std::optional<TypedPoint> parsePoint(std::wstring_view text);

// A unit vector in the plane.
struct Direction
{
    double x, y;
};
// Returns the cosine and sine of an angle in degrees. The result is exact for quarter turns.
Direction directionOf(double degrees);
}  // namespace host
