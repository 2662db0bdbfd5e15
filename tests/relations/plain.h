// The steps of the plain grid.
#pragma once

#include "tests/relations/plaingrid.h"

namespace relations::plain
{
struct Labels
{
    bool top, bottom, left, right;
    CString prefix;
};

// The requested grid and the intermediate results.
struct Grid
{
    AcGePoint3d corner1, corner2, base;  // [ucs] in the UCS grid, once they are converted
    double HorStep, VertStep;
    Adesk::UInt16 color;
    double crossSize;
    bool isContinuous, inUcs, needText;
    double heightText;
    int decimals;
    Labels x, y;
    CString style, locale;
    CarriedOn carriedOn;

    const AcDbEntity* boundary = nullptr;
    AcGePoint3dArray outline{};             // the outline of the world grid
    const AcDbCurve* rectangle = nullptr;   // the rectangle of the UCS grid
    AcGePoint3dArray xPoints{}, yPoints{};  // label points [wcs], in pairs
    AcDbObjectIdArray made{};

    void add(AcDbObjectId id)
    {
        if (!id.isNull())
        {
            made.append(id);
        }
    }
};

// Swaps x and y independently, so that corner1 holds the smaller and corner2 the larger values.
void orderCorners(AcGePoint3d& corner1, AcGePoint3d& corner2);

// Draws the pieces at each node and records their label points.
void drawNodes(Grid& grid, double elevation);

// The edges of the picked rectangle [wcs], with top and left as the user sees them.
struct Edges
{
    AcGeLineSeg3d top, bottom, left, right;
};

Edges edgesOf(const Grid& grid);

void labelInWorld(Grid& grid, const Edges& edges);
void labelInUcs(Grid& grid);
}  // namespace relations::plain
