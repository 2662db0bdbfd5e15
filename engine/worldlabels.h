// The labels of the grid along the world axes.
#pragma once

#include "hostapi/host.h"
#include "engine/gridrequest.h"

// The edges of the picked rectangle [wcs] at the z of the first corner. Top and left are meant as
// the user sees them.
struct FrameEdges
{
    AcGeLineSeg3d top;
    AcGeLineSeg3d bottom;
    AcGeLineSeg3d left;
    AcGeLineSeg3d right;
};

// Returns the edges for the corners of the request, which are still as they were picked [wcs].
FrameEdges frameEdges(const GridRequest& request);

// Labels every end of a line that lies on an edge where the options request labels of the
// coordinate, and appends the ids of the labels to made. The values are signed distances from the
// base point along the world axes, in drawing units.
//
// axis   0 for X labels, 1 for Y labels
// pairs  the ends of the lines [wcs]. The two ends of a line are labelled in the order of reading:
//        lower before upper, left before right, as the user sees them. Ends that are equally high,
//        or equally far to the right, within the host's equalPoint keep the given order.
//
// If the view twist lies in the first or the third quarter, including its end (90 or 270 degrees),
// X labels are turned over, so that they do not stand on their heads. Y labels are not turned over:
// a compatibility rule requires that a grid drawn again matches the filed sheets.
void addWorldLabels(const GridRequest& request, const FrameEdges& edges, int axis,
                    AcGePoint3dArray pairs, AcDbObjectIdArray& made);
