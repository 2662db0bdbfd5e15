#include "engine/labels.h"

#include "output/frame.h"
#include "output/labels.h"
#include "output/numbers.h"
#include "output/tolerance.h"

// The supporting line runs from end to end of the grid. A clipped piece would not do: its length
// gives the direction only to a few units of the last place. A thousand lengths away, at survey
// coordinates, each piece of one line would then meet the outline at a different point.
AcGePoint3dArray labelPoints(const GridRequest& request, const GridLines& lines, int axis,
                             const PieceClipper& clipper)
{
    Piece line = {request.corner1, request.corner2};
    AcGePoint3dArray pairs;
    // A text of a height that is not measurable would keep the drawing from being saved.
    if (request.options.needText == 0 || !isMeasurable(request.options.heightText))
    {
        return pairs;
    }
    KnownPoints known(clipper.toWorld *
                      (axis == 0 ? AcGeVector3d(1, 0, 0) : AcGeVector3d(0, 1, 0)));
    for (std::size_t i = 0; i < lines.at[axis].size(); ++i)
    {
        line.start[axis] = lines.at[axis][i];
        line.end[axis] = lines.at[axis][i];
        AcGePoint3dArray ends;
        clipper.intersectOutline(line, AcDb::kExtendThis, ends);
        if (ends.length() == 2 && !known.containsPoint(ends[0]))
        {
            known.add(ends[0]);
            known.add(ends[1]);
            pairs.setGrowLength(pairs.length() + 8);  // for the reason given with addMade
            pairs.append(ends);
        }
    }
    return pairs;
}

namespace
{
// This constant must keep exactly its twelve digits. It decides which view twists count and turns
// the labels. A compatibility rule requires that a grid drawn again matches the filed drawings,
// which were made with this value.
const double labelPi = 3.14159265359;

// Returns whether labels of the axis are wanted on an edge: 0 top, 1 bottom, 2 left, 3 right.
bool isWanted(const GridSettings& options, int axis, int edge)
{
    const int wanted[2][4] = {
        {options.bXTopScribe, options.bXBottomScribe, options.bXLeftScribe, options.bXRightScribe},
        {options.bYTopScribe, options.bYBottomScribe, options.bYLeftScribe, options.bYRightScribe}};
    return wanted[axis][edge] != 0;
}

// Draws the label at the end pairs[index] of a line. A text that is turned over stays at its end.
void addLabel(const GridRequest& request, int axis, double value, const AcGePoint3dArray& pairs,
              int index, bool startsHere, bool isTurned, AcDbObjectIdArray& made)
{
    const GridSettings& options = request.options;
    const AcGePoint3d here = toUcs(pairs[index]);
    const AcGePoint3d there = toUcs(pairs[index % 2 == 0 ? index + 1 : index - 1]);
    double rotation = acutAngle(asDblArray(here), asDblArray(there));
    rotation = startsHere ? rotation : labelPi + rotation;
    const double turn = startsHere ? labelPi : -labelPi;
    rotation = isTurned ? rotation + turn : rotation;
    const CString text = (axis == 0 ? options.textXScribe : options.textYScribe) +
                         formatReal(value, options.iCountSigns);
    addMade(made, addLabelText(true, text, here, options.heightText, rotation, request.color(),
                               options.textStyleName,
                               startsHere != isTurned ? AcDb::kTextLeft : AcDb::kTextRight,
                               AcDb::kTextBottom, ACDB_MODEL_SPACE));
}

// Returns the edges of the picked rectangle [wcs] at the z of the first corner, in the order of
// isWanted.
std::vector<AcGeLineSeg3d> frameEdges(const GridRequest& picked)
{
    AcGePoint3d low = toUcs(picked.corner1);
    AcGePoint3d high = toUcs(picked.corner2);
    sortCorners(low, high);
    const auto corner = [&](double xUcs, double yUcs) -> AcGePoint3d
    {
        const AcGePoint3d wcs = toWcs(AcGePoint3d(xUcs, yUcs, 0));
        return AcGePoint3d(wcs.x, wcs.y, picked.corner1.z);
    };
    std::vector<AcGeLineSeg3d> edges;
    edges.push_back(AcGeLineSeg3d(corner(low.x, high.y), corner(high.x, high.y)));
    edges.push_back(AcGeLineSeg3d(corner(low.x, low.y), corner(high.x, low.y)));
    edges.push_back(AcGeLineSeg3d(corner(low.x, low.y), corner(low.x, high.y)));
    edges.push_back(AcGeLineSeg3d(corner(high.x, low.y), corner(high.x, high.y)));
    return edges;
}

// Sorts the two points of each pair along the axis of the UCS. In a view that is turned by a
// quarter both ends of a line are equally high, and rounding alone would decide, differently for
// each line. Such pairs keep the order of the host, so that all lines of a sheet are treated in the
// same way.
void orderPairs(AcGePoint3dArray& pairs, int axis)
{
    for (int i = 0; i + 1 < pairs.length(); i += 2)
    {
        const double ahead = toUcs(pairs[i])[axis] - toUcs(pairs[i + 1])[axis];
        if (ahead > AcGeContext::gTol.equalPoint())
        {
            pairs.swap(i, i + 1);
        }
    }
}

// Returns whether the view twist lies in the first or the third quarter. The comparison excludes
// the bounds, but they are multiples of labelPi and a little larger than the exact angles. A view
// turned by exactly 90 or 270 degrees therefore counts as twisted; a view turned by 0 or 180 does
// not.
bool isViewTwisted()
{
    resbuf variable = resbuf();
    acedGetVar(L"VIEWTWIST", &variable);
    const double twist = variable.resval.rreal;
    return (twist > 0 && twist < labelPi / 2) || (twist > labelPi && twist < labelPi / 2 + labelPi);
}
}  // namespace

void addWorldLabels(const GridRequest& picked, int axis, AcGePoint3dArray pairs,
                    AcDbObjectIdArray& made)
{
    const std::vector<AcGeLineSeg3d> edges = frameEdges(picked);
    const bool isTurned = axis == 0 && isViewTwisted();
    orderPairs(pairs, 1 - axis);
    for (int i = 0; i < pairs.length(); ++i)
    {
        bool isOnWantedEdge = false;
        for (int edge = 0; edge < 4 && !isOnWantedEdge; ++edge)
        {
            isOnWantedEdge = isWanted(picked.options, axis, edge) &&
                             edges[edge].distanceTo(pairs[i]) <= AcGeContext::gTol.equalPoint();
        }
        if (isOnWantedEdge)
        {
            // The line through the base point shows exactly 0; otherwise rounding could print it
            // with a minus sign.
            const double offset = pairs[i][axis] - picked.options.basePoint[axis];
            const bool isZero = std::fabs(offset) < AcGeContext::gTol.equalPoint();
            addLabel(picked, axis, isZero ? 0 : offset, pairs, i, i % 2 == 0, isTurned, made);
        }
    }
}

void addUcsLabels(const GridRequest& request, int axis, const AcGePoint3dArray& pairs,
                  AcDbObjectIdArray& made)
{
    for (int i = 0; i < pairs.length(); ++i)
    {
        // The host returns the far end of a line first, which is the upper or the right end.
        const int edge = axis == 0 ? i % 2 : 3 - i % 2;
        if (isWanted(request.options, axis, edge))
        {
            // Near the base the value is not set to exactly 0, unlike in the world grid. The labels
            // show the computed value, and filed drawings may say "-0".
            const double value = toUcs(pairs[i])[axis] - request.options.basePoint[axis];
            addLabel(request, axis, value, pairs, i, i % 2 != 0, false, made);
        }
    }
}
