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

// Labels every noted point that lies on an edge where labels are wanted: first X, then Y. Values
// are measured from the base point along the world axes. Brings the pairs into the order in which
// they are read: lower before upper, left before right, as the user sees them. Ends that are
// equally high, or equally far to the right, within the host's equalPoint stay in the order in
// which they came.
//
// Under a view twist in the first or third quarter, its end (90 or 270 degrees) included, X labels
// are turned over, so that they do not stand on their heads. Y labels never are: sheets have been
// checked and filed with them as they come.
void addWorldLabels(const GridRequest& request, const FrameEdges& edges, GridDrawing& drawing);
