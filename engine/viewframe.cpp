#include "engine/viewframe.h"

namespace
{
// Returns the value of the variable. If the variable cannot be read, the result holds zeros, and
// the frame is built from them.
resbuf readVariable(const ACHAR* name)
{
    resbuf variable = resbuf();
    acedGetVar(name, &variable);
    return variable;
}

// Returns the unit vector [wcs] towards the viewer. The variable holds a vector of any length in
// UCS coordinates.
AcGeVector3d viewDirection()
{
    AcGePoint3d direction = asPnt3d(readVariable(L"VIEWDIR").resval.rpoint);
    acdbUcs2Wcs(asDblArray(direction), asDblArray(direction), true);
    const AcGeVector3d towardsViewer = direction.asVector();
    return towardsViewer * (1 / towardsViewer.length());
}
}  // namespace

Acad::ErrorStatus setViewFrameUcs()
{
    const AcGePoint3d origin = asPnt3d(readVariable(L"UCSORG").resval.rpoint);
    const double twist = readVariable(L"VIEWTWIST").resval.rreal;
    AcGeMatrix3d frame = AcGeMatrix3d::planeToWorld(viewDirection()) *
                         AcGeMatrix3d::rotation(-twist, AcGeVector3d::kZAxis);
    frame.setTranslation(origin.asVector());
    return acedSetCurrentUCS(frame);
}
