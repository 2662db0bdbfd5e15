// What the labels of both kinds of grid have in common. X labels stand at the ends of vertical
// lines (axis 0), Y labels at the ends of horizontal ones (axis 1).
#pragma once

#include "engine/gridrequest.h"
#include "engine/pieces.h"

// Twelve decimals and no more: view twists are judged and labels are turned with this number in
// every filed drawing, and a grid drawn again must match them.
const double labelPi = 3.14159265359;

// The edges on which the labels of one coordinate are wanted.
struct WantedEdges
{
    bool top;
    bool bottom;
    bool left;
    bool right;
};

WantedEdges wantedEdges(const GridSettings& options, int axis);

// Returns the ends [wcs] of the lines on the outline, in pairs: where the supporting line of the
// pieces meets the outline in just two points that are not in the list yet.
//
// positions  of lines along the axis, in the order in which they are labelled
AcGePoint3dArray labelPoints(const GridRequest& request, const std::vector<double>& positions,
                             int axis, const PieceClipper& clipper);

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

// Writes the prefix of the coordinate and the value, which is in drawing units.
void addLabel(const GridRequest& request, int axis, double value, const LabelPlace& place,
              AcDbObjectIdArray& made);
