// What the labels of both kinds of grid have in common.
#pragma once

#include "hostapi/host.h"
#include "engine/gridrequest.h"

// Twelve decimals and no more. View twists are judged and labels are turned with this number in
// every drawing made so far; with a longer one the same grid would come out different.
const double labelPi = 3.14159265359;

struct LabelPlace
{
    AcGePoint3d anchor;  // [ucs]
    double rotation;     // [rad] from the X axis of the UCS
    AcDb::TextHorzMode mode;
};

// Place of the label at one end of a line, given by the pairs of its ends [wcs].
//
// The text runs along the line, inside the outline: it starts at this end and runs to the other, or
// it ends at this end and comes from the other. So both labels of a line read in one direction.
LabelPlace labelPlace(const AcGePoint3dArray& pairs, int index, bool startsHere);

// Writes prefix and value. Value in drawing units.
void addLabel(const GridRequest& request, const CString& prefix, double value,
              const LabelPlace& place, GridDrawing& drawing);
