// The labels of both kinds of grid. X labels stand at the ends of vertical lines (axis 0), Y labels
// at the ends of horizontal lines (axis 1).
//
// A text runs along its line, inside the outline. Both labels of a line read in the same direction:
// the text starts at one end and runs towards the other, or comes from the other end and ends here.
// It is the prefix of the coordinate and the signed distance from the base point, in drawing units.
#pragma once

#include "engine/pieces.h"

// Returns the ends [wcs] of the lines on the outline, in pairs, in the order of the lines. A line
// gives a pair if its supporting line meets the outline in exactly two points and the list does not
// hold the first of them yet. The list is empty when the options request no labels and when the
// text height is not a usable number.
//
// request  corner1 and corner2 are the ends of the grid, in the system of the clipper
AcGePoint3dArray labelPoints(const GridRequest& request, const GridLines& lines, int axis,
                             const PieceClipper& clipper);

// Labels the ends [wcs] of the lines of the world grid that lie on an edge where the options
// request labels of the coordinate, and appends the ids of the labels to made.
//
// picked  its corners are still as they were picked [wcs]. They span the rectangle with the edges,
//         whose top and left are meant as the user sees them.
// pairs   The two ends of a line are labelled in the order of reading: lower before upper, left
//         before right, as the user sees them. Ends that are equally high, or equally far to the
//         right, within the host's equalPoint keep the given order.
//
// If the view twist lies in the first or the third quarter, including its end (90 or 270 degrees),
// X labels are turned over, so that they do not stand on their heads. Y labels are not turned over:
// a compatibility rule requires that a grid drawn again matches the filed sheets.
void addWorldLabels(const GridRequest& picked, int axis, AcGePoint3dArray pairs,
                    AcDbObjectIdArray& made);

// Labels the ends [wcs] of the lines of the UCS grid, whose points are [ucs], and appends the ids
// of the labels to made. Vertical lines end at the top and the bottom edge, horizontal lines at the
// left and the right edge. The function therefore ignores left and right for X, top and bottom for
// Y, and the view twist.
void addUcsLabels(const GridRequest& request, int axis, const AcGePoint3dArray& pairs,
                  AcDbObjectIdArray& made);
