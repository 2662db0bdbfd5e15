// Points as they are typed.
#pragma once

#include <optional>
#include <string_view>

#include "gepnt3d.h"

namespace host
{
// A typed point before it is known where it is measured from.
struct TypedPoint
{
    AcGePoint3d coordinates;
    bool hasZ = false;
    bool relative = false;  // "@": from the last point
    bool world = false;     // "*": [wcs], else [ucs]
};

// "x,y", "x,y,z", "dist<angle" with the angle in degrees, each with "@" or "*" before it; "@" alone
// is the last point. Blanks around coordinates do not count.
std::optional<TypedPoint> parsePoint(std::wstring_view text);

// The cosine and sine of an angle in degrees; exact for quarter turns.
struct Direction
{
    double x, y;
};
Direction directionOf(double degrees);
}  // namespace host
