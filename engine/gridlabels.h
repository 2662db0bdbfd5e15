// The parts that the labels of both kinds of grid share. X labels stand at the ends of vertical
// lines (axis 0), Y labels at the ends of horizontal lines (axis 1).
#pragma once

#include "engine/gridrequest.h"
#include "engine/pieces.h"

// This constant must keep exactly its twelve digits. It decides which view twists count and turns
// the labels. A compatibility rule requires that a grid drawn again matches the filed drawings,
// which were made with this value.
const double labelPi = 3.14159265359;

// The edges on which the labels of one coordinate are wanted.
struct WantedEdges
{
    bool top;
    bool bottom;
    bool left;
    bool right;
};

// Returns the edges that the options request for the coordinate of the axis.
WantedEdges wantedEdges(const GridSettings& options, int axis);

// Returns the ends [wcs] of the lines on the outline, in pairs. A line gives a pair if its
// supporting line meets the outline in exactly two points and the list does not hold the first of
// them yet.
//
// request    corner1 and corner2 are the ends of the grid, in the system of the clipper
// positions  the coordinates of the lines along the axis, in the order in which they are labelled
AcGePoint3dArray labelPoints(const GridRequest& request, const std::vector<double>& positions,
                             int axis, const PieceClipper& clipper);

// The place of one label.
struct LabelPlace
{
    AcGePoint3d anchor;  // [ucs]
    double rotation;     // [rad] from the X axis of the UCS
    AcDb::TextHorzMode mode;
};

// Returns the place of the label at the end pairs[index] of a line. The pairs are those of
// labelPoints [wcs].
//
// The text runs along the line, inside the outline. If startsHere is true, the text starts at this
// end and runs towards the other end. If it is false, the text comes from the other end and ends
// here. Both labels of a line therefore read in the same direction.
LabelPlace labelPlace(const AcGePoint3dArray& pairs, int index, bool startsHere);

// Draws a label in model space and appends its id to made. The text is the prefix of the coordinate
// and the value, which is in drawing units.
void addLabel(const GridRequest& request, int axis, double value, const LabelPlace& place,
              AcDbObjectIdArray& made);
