#include "output/frame.h"

AcGePoint3d toUcs(AcGePoint3d wcs)
{
    acdbWcs2Ucs(asDblArray(wcs), asDblArray(wcs), false);
    return wcs;
}

AcGePoint3d toWcs(AcGePoint3d ucs)
{
    acdbUcs2Wcs(asDblArray(ucs), asDblArray(ucs), false);
    return ucs;
}

AcGeMatrix3d currentUcs()
{
    AcGeMatrix3d ucs;
    acedGetCurrentUCS(ucs);
    return ucs;
}
