// The steps of the plain grid among themselves.
#pragma once

#include "tests/relations/plaingrid.h"

namespace relations::plain
{
struct Labels
{
    bool top, bottom, left, right;
    CString prefix;
};

// Everything that was asked for, and what is known of it so far.
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
    AcGePoint3dArray outline{};             // of the world grid
    const AcDbCurve* rectangle = nullptr;   // of the UCS grid
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

// Exchanges x and y, each by itself, so that corner1 holds the smaller and corner2 the larger.
void orderCorners(AcGePoint3d& corner1, AcGePoint3d& corner2);

// Draws the pieces at each node and notes their label points.
void drawNodes(Grid& grid, double elevation);

// Of the picked rectangle [wcs], top and left as the user sees them.
struct Edges
{
    AcGeLineSeg3d top, bottom, left, right;
};

Edges edgesOf(const Grid& grid);

void labelInWorld(Grid& grid, const Edges& edges);
void labelInUcs(Grid& grid);
}  // namespace relations::plain
