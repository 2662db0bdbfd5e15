// What buildGrid was asked for, handed to its steps.
#pragma once

#include "hostapi/host.h"

// Labels of one coordinate.
struct LabelRequest
{
    bool top;
    bool bottom;
    bool left;
    bool right;
    CString prefix;
};

// Points [wcs] in the world grid, [ucs] in the UCS grid once they are converted. When pieces are
// drawn corner1 holds the smaller x and y of the outline and corner2 the larger.
struct GridRequest
{
    AcGePoint3d corner1;
    AcGePoint3d corner2;
    AcGePoint3d basePoint;
    double HorStep;
    double VertStep;
    Adesk::UInt16 Color;
    double crossSize;
    int LookType;
    bool needText;
    double heightText;
    int iCountSigns;
    LabelRequest xLabels;
    LabelRequest yLabels;
    CString textStyleName;
    CString localeName;
};

// What the steps have drawn so far.
struct GridDrawing
{
    AcDbObjectIdArray made;         // every entity, in order of creation
    AcGePoint3dArray xLabelPoints;  // [wcs] ends of vertical lines on the outline, in pairs
    AcGePoint3dArray yLabelPoints;  // [wcs] of horizontal lines
};

// Notes an entity in `made`; a null id is none.
void addMade(GridDrawing& drawing, AcDbObjectId id);

// Exchanges x and y, each by itself, so that corner1 holds the smaller and corner2 the larger.
void sortCorners(AcGePoint3d& corner1, AcGePoint3d& corner2);
