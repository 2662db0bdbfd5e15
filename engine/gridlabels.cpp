#include "engine/gridlabels.h"

#include "engine/pointtests.h"
#include "output/frame.h"
#include "output/labels.h"
#include "output/numbers.h"

WantedEdges wantedEdges(const GridSettings& options, int axis)
{
    const WantedEdges ofX = {options.bXTopScribe != 0, options.bXBottomScribe != 0,
                             options.bXLeftScribe != 0, options.bXRightScribe != 0};
    const WantedEdges ofY = {options.bYTopScribe != 0, options.bYBottomScribe != 0,
                             options.bYLeftScribe != 0, options.bYRightScribe != 0};
    return axis == 0 ? ofX : ofY;
}

// The supporting line runs from end to end of the grid. A clipped piece would not do: its length
// gives the direction only to a few units of the last place. A thousand lengths away, at survey
// coordinates, each piece of one line would then meet the outline at a different point.
AcGePoint3dArray labelPoints(const GridRequest& request, const std::vector<double>& positions,
                             int axis, const PieceClipper& clipper)
{
    Piece line = {request.corner1, request.corner2};
    line.start.z = clipper.elevation;
    line.end.z = clipper.elevation;
    AcGePoint3dArray pairs;
    KnownPoints known(clipper.toWorld(axis == 0 ? AcGeVector3d::kXAxis : AcGeVector3d::kYAxis));
    for (std::size_t i = 0; i < positions.size(); ++i)
    {
        line.start[axis] = positions[i];
        line.end[axis] = positions[i];
        AcGePoint3dArray ends;
        clipper.intersectOutline(line, AcDb::kExtendThis, ends);
        if (ends.length() == 2 && !known.contain(ends[0]))
        {
            known.add(ends[0]);
            known.add(ends[1]);
            pairs.append(ends);
        }
    }
    return pairs;
}

LabelPlace labelPlace(const AcGePoint3dArray& pairs, int index, bool startsHere)
{
    const int other = index % 2 == 0 ? index + 1 : index - 1;
    const AcGePoint3d here = toUcs(pairs[index]);
    const AcGePoint3d there = toUcs(pairs[other]);
    const double angle = acutAngle(asDblArray(here), asDblArray(there));
    const LabelPlace starting = {here, angle, AcDb::kTextLeft};
    const LabelPlace ending = {here, labelPi + angle, AcDb::kTextRight};
    return startsHere ? starting : ending;
}

void addLabel(const GridRequest& request, int axis, double value, const LabelPlace& place,
              AcDbObjectIdArray& made)
{
    const GridSettings& options = request.options;
    const CString text = (axis == 0 ? options.textXScribe : options.textYScribe) +
                         formatReal(value, options.iCountSigns);
    addMade(made, addLabelText(true, text, place.anchor, options.heightText, place.rotation,
                               colorIndex(request), options.textStyleName, place.mode,
                               AcDb::kTextBottom, ACDB_MODEL_SPACE));
}
