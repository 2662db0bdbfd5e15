// The record of one requested grid, and small helpers of the engine.
#pragma once

#include "hostapi/host.h"
#include "settings/gridsettings.h"

// One grid, as the command requests it. The points are [wcs]. The steps of the engine change the
// points of their own copy: they stay [wcs] in the world grid and become [ucs] in the UCS grid. By
// the time pieces are drawn, corner1 holds the smaller x and y of the outline and corner2 the
// larger, and both have the z of all nodes.
struct GridRequest
{
    AcGePoint3d corner1;
    AcGePoint3d corner2;
    GridSettings options;
    CString localeName;  // selects the language of the one error text (output/language.h)

    // Returns the colour index of lines and texts. The settings may hold any int; the index is that
    // int modulo 65536. The host refuses a result that is not a colour index.
    Adesk::UInt16 color() const { return static_cast<Adesk::UInt16>(options.Color); }
};

// Appends the id of an entity to the list. A null id means that the host refused the entity, so the
// function does not append it.
void addMade(AcDbObjectIdArray& made, AcDbObjectId id);

// Swaps the x and the y of the corners independently, so that corner1 holds the smaller values and
// corner2 the larger. The z of both corners stays.
void sortCorners(AcGePoint3d& corner1, AcGePoint3d& corner2);
