#include <cmath>

#include "aced.h"
#include "acutads.h"
#include "dbxutil.h"
#include "geassign.h"
#include "host/database/drawing.h"
#include "host/documents/documentmanager.h"
#include "host/editor/ucs.h"
#include "host/editor/view.h"

namespace
{
// Returns the current UCS [borrowed]; null without a drawing.
const host::Frame* currentUcs()
{
    const host::Document* document = host::openDocument();
    return document != nullptr ? &host::stateOf(*document->database()).ucs().toWorld : nullptr;
}
}  // namespace

Acad::ErrorStatus acedGetCurrentUCS(AcGeMatrix3d& mat)
{
    const host::Frame* const ucs = currentUcs();
    if (ucs == nullptr)
    {
        return Acad::eNoDatabase;
    }
    mat = *ucs;
    return Acad::eOk;
}

Acad::ErrorStatus acedSetCurrentUCS(const AcGeMatrix3d& mat)
{
    host::Document* document = host::documents().document();
    if (document == nullptr)
    {
        return Acad::eNoDatabase;
    }
    return host::setUcs(*document, mat) ? Acad::eOk : Acad::eInvalidInput;
}

bool acedRestorePreviousUCS()
{
    host::Document* document = host::documents().document();
    return document != nullptr && host::restorePreviousUcs(*document);
}

bool acdbWcs2Ucs(ads_point p, ads_point q, bool vec)
{
    const host::Frame* const ucs = currentUcs();
    if (p == nullptr || q == nullptr || ucs == nullptr)
    {
        return false;
    }
    if (vec)
    {
        asVec3d(q) = host::worldToUcs(*ucs, asVec3d(p));
        return true;
    }
    if (ucs->leaves(asPnt3d(p)))
    {
        asPnt3d(q) = asPnt3d(p) + AcGeVector3d();  // the sum removes a negative zero
        return true;
    }
    asPnt3d(q) = host::worldToUcs(*ucs, asPnt3d(p));
    return true;
}

bool acdbUcs2Wcs(ads_point p, ads_point q, bool vec)
{
    const host::Frame* const ucs = currentUcs();
    if (p == nullptr || q == nullptr || ucs == nullptr)
    {
        return false;
    }
    if (vec)
    {
        asVec3d(q) = host::ucsToWorld(*ucs, asVec3d(p));
        return true;
    }
    asPnt3d(q) = host::ucsToWorld(*ucs, asPnt3d(p));
    return true;
}

ads_real acutAngle(const ads_point pt1, const ads_point pt2)
{
    const double dx = pt2[X] - pt1[X];
    const double dy = pt2[Y] - pt1[Y];
    return dx == 0 && dy == 0 ? 0 : host::inFullTurn(std::atan2(dy, dx));
}

namespace
{
// Finds the coordinate system that acedTrans names by a number; returns false for another name.
bool frameByCode(const resbuf* code, AcGeMatrix3d& frame)
{
    host::Document* document = host::documents().document();
    if (code == nullptr || code->restype != RTSHORT || document == nullptr)
    {
        return false;
    }
    const host::DrawingState& state = host::stateOf(*document->database());
    switch (code->resval.rint)
    {
        case 0:
            frame = AcGeMatrix3d();
            return true;
        case 1:
            frame = state.ucs().toWorld;
            return true;
        case 2:
            frame = host::viewFrame(state.view);
            return true;
        default:
            return false;
    }
}
}  // namespace

int acedTrans(const ads_point pt, const resbuf* from, const resbuf* to, int disp, ads_point result)
{
    AcGeMatrix3d source, target;
    if (pt == nullptr || !frameByCode(from, source) || !frameByCode(to, target))
    {
        return RTERROR;
    }
    if (disp != 0)
    {
        asVec3d(result) = host::worldToUcs(target, host::ucsToWorld(source, asVec3d(pt)));
        return RTNORM;
    }
    asPnt3d(result) = host::worldToUcs(target, host::ucsToWorld(source, asPnt3d(pt)));
    return RTNORM;
}
