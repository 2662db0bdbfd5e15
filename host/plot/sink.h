// The interface that takes the shapes of a drawing one by one.
#pragma once

#include <string>
#include <vector>

#include "gepnt3d.h"
#include "gevec3d.h"
#include "host/colors/color.h"

namespace host::plot
{
using Points = std::vector<AcGePoint3d>;

// One line of text. `up` runs from the line to the top of a capital letter. `along` has the
// direction of the line and the same length, stretched by the width factor.
struct TextLine
{
    AcGePoint3d origin;
    AcGeVector3d along;
    AcGeVector3d up;
    double across = 0;  // the part of the text's width before the origin: 0 left, 1 right
    double above = 0;   // the part of a capital's height below the origin: 0 on the line, 1 hanging
    std::wstring text;
};

// Takes shapes. Every coordinate is [wcs] and finite.
class Sink
{
public:
    virtual ~Sink() = default;
    // Takes a chain of chords; a closed path also has the chord back to the first point.
    virtual void path(const Points& points, bool closed, Color color) = 0;
    // Takes a filled area. A region that lies within an even number of loops is a hole.
    virtual void area(const std::vector<Points>& loops, Color color) = 0;
    // Takes a point entity.
    virtual void dot(const AcGePoint3d& point, Color color) = 0;
    // Takes a line without an end; `both` makes it endless to both sides.
    virtual void ray(const AcGePoint3d& from, const AcGeVector3d& along, bool both,
                     Color color) = 0;
    // Takes one line of text.
    virtual void text(const TextLine& line, Color color) = 0;
};
}  // namespace host::plot
