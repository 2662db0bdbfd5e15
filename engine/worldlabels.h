// Labels of the grid along the world axes.
#pragma once

#include "hostapi/host.h"
#include "engine/gridrequest.h"

// Edges of the picked rectangle [wcs], top and left as the user sees them, at the first corner's z.
struct FrameEdges
{
    AcGeLineSeg3d top;
    AcGeLineSeg3d bottom;
    AcGeLineSeg3d left;
    AcGeLineSeg3d right;
};

// From the corners as they were picked.
FrameEdges frameEdges(const GridRequest& request);

// Labels every end of a line that lies on an edge where labels of the coordinate are wanted. Values
// are measured from the base point along the world axes.
//
// axis   0 for X labels, 1 for Y labels
// pairs  [wcs] ends of the lines. They are labelled in the order in which they are read: lower
//        before upper, left before right, as the user sees them. Ends that are equally high, or
//        equally far to the right, within the host's equalPoint stay in the order given.
//
// Under a view twist in the first or third quarter, its end (90 or 270 degrees) included, X labels
// are turned over, so that they do not stand on their heads. Y labels never are: filed sheets have
// them as they come.
void addWorldLabels(const GridRequest& request, const FrameEdges& edges, int axis,
                    AcGePoint3dArray pairs, AcDbObjectIdArray& made);
