// What a grid is asked for with.
#pragma once

#include "hostapi/host.h"
#include "settings/gridsettings.h"

// One grid, as the command asks for it. The steps of the engine change the points of their copy:
// [wcs] in the world grid, [ucs] in the UCS grid once they are converted. When pieces are drawn
// corner1 holds the smaller x and y of the outline and corner2 the larger.
struct GridRequest
{
    AcGePoint3d corner1;
    AcGePoint3d corner2;
    GridSettings options;
    CString localeName;  // selects the language of the one error text (output/language.h)
};

// The colour index of lines and texts. The settings hold any int; the index is that int modulo
// 65536, and the host refuses what is then no colour index.
Adesk::UInt16 colorIndex(const GridRequest& request);

// Appends an entity to those made. A null id stands for an entity that the host refused: it is left
// out.
void addMade(AcDbObjectIdArray& made, AcDbObjectId id);

// Exchanges x and y, each by itself, so that corner1 holds the smaller and corner2 the larger.
void sortCorners(AcGePoint3d& corner1, AcGePoint3d& corner2);
