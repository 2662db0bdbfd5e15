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

// One line of text. The vectors are the size of one capital's height: `along` the line, stretched
// by the width factor, and `up` a capital.
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
    virtual void path(const Points& points, bool closed, Color color) = 0;
    // Takes a filled area. A region that lies within an even number of loops is a hole.
    virtual void area(const std::vector<Points>& loops, Color color) = 0;
    virtual void dot(const AcGePoint3d& point, Color color) = 0;
    // Takes a line without an end; `both` makes it endless to both sides.
    virtual void ray(const AcGePoint3d& from, const AcGeVector3d& along, bool both,
                     Color color) = 0;
    virtual void text(const TextLine& line, Color color) = 0;
};
}  // namespace host::plot
