#include "engine/gridlabels.h"

#include "output/frame.h"
#include "output/labels.h"
#include "output/numbers.h"

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

void addLabel(const GridRequest& request, const CString& prefix, double value,
              const LabelPlace& place, GridDrawing& drawing)
{
    const CString text = prefix + formatReal(value, request.iCountSigns);
    addMade(drawing, addLabelText(true, text, place.anchor, request.heightText, place.rotation,
                                  request.Color, request.textStyleName, place.mode,
                                  AcDb::kTextBottom, ACDB_MODEL_SPACE));
}
