// What a sheet is drawn on with: the drawing library of the system.
#pragma once

#include <memory>
#include <string>

#include "host/plot/sink.h"
#include "host/runtime/result.h"

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

// Everything is in millimetres from the upper left corner of the sheet, Y downwards.
class Ink
{
public:
    virtual ~Ink() = default;

    // A round pen draws through the points.
    virtual void stroke(const Points& points, bool closed, double width, Color color) = 0;
    // What lies within an even number of the loops is a hole.
    virtual void fill(const std::vector<Points>& loops, Color color) = 0;
    virtual void disc(const AcGePoint3d& centre, double diameter, Color color) = 0;
    // Begins at `start`; the vectors are one capital's height along the line and up.
    virtual void text(const AcGePoint3d& start, const AcGeVector3d& along, const AcGeVector3d& up,
                      std::wstring_view text, Color color) = 0;

    // The bytes of the file; nothing can be drawn after that. It fails when memory ran out.
    virtual Result<std::string> finish() = 0;
};

// Whether the library writes files of that kind.
bool canWrite(FileKind kind);

// White; of a kind that can be written.
std::unique_ptr<Ink> openInk(const Sheet& sheet);

// In heights of a capital.
double textWidth(std::wstring_view text);

// Of a picture, to the millimetre: its longer side has as many dots on every sheet.
inline double dotsOf(const Sheet& sheet)
{
    const double longerSide = 2400;
    return longerSide / (sheet.width > sheet.height ? sheet.width : sheet.height);
}
}  // namespace host::plot
