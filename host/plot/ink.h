// Draws on a sheet with the drawing library of the system.
#pragma once

#include <memory>
#include <string>

#include "host/plot/sink.h"
#include "host/basics/result.h"

namespace host::plot
{
enum class FileKind
{
    png,
    pdf,
    svg
};

struct Sheet
{
    FileKind kind;
    double width;  // millimetres
    double height;
};

// Draws shapes on a sheet. All measures are in millimetres from the upper left corner of the sheet;
// Y points down.
class Ink
{
public:
    virtual ~Ink() = default;

    // Draws a line through the points with a round pen; `width` is the width of the pen.
    virtual void stroke(const Points& points, bool closed, double width, Color color) = 0;
    // Fills the area within the loops. A region that lies within an even number of loops is a hole.
    virtual void fill(const std::vector<Points>& loops, Color color) = 0;
    // Draws a filled circle.
    virtual void disc(const AcGePoint3d& centre, double diameter, Color color) = 0;
    // Draws a text that begins at `start`. The vectors mean what those of a TextLine mean.
    virtual void text(const AcGePoint3d& start, const AcGeVector3d& along, const AcGeVector3d& up,
                      std::wstring_view text, Color color) = 0;

    // Returns the bytes of the file, or a failure when memory ran out. No shape may be drawn
    // afterwards.
    virtual Result<std::string> finish() = 0;
};

// Tells whether the library writes files of that kind.
bool canWrite(FileKind kind);

// Opens a white sheet, whose kind must be one that can be written.
std::unique_ptr<Ink> openInk(const Sheet& sheet);

// Returns the width of a text in heights of a capital letter.
double textWidth(std::wstring_view text);

// Returns the dots of a picture to the millimetre. The longer side has the same number of dots on
// every sheet.
inline double dotsOf(const Sheet& sheet)
{
    const double longerSide = 2400;
    return longerSide / (sheet.width > sheet.height ? sheet.width : sheet.height);
}
}  // namespace host::plot
