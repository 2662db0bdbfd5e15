// Enumerations of the drawing database.
#pragma once

#include "adesk.h"
#include "acadstrc.h"

#define ACDB_MODEL_SPACE ACRX_T("*Model_Space")
#define ACDB_PAPER_SPACE ACRX_T("*Paper_Space")

namespace AcDb
{
enum OpenMode
{
    kForRead = 0,
    kForWrite = 1,
    kForNotify = 2
};

enum Intersect
{
    kOnBothOperands = 0,
    kExtendThis = 1,
    kExtendArg = 2,
    kExtendBoth = 3
};

enum Visibility
{
    kVisible = 0,
    kInvisible = 1
};

enum Poly2dType
{
    k2dSimplePoly = 0,
    k2dFitCurvePoly = 1,
    k2dQuadSplinePoly = 2,
    k2dCubicSplinePoly = 3
};

enum TextHorzMode
{
    kTextLeft = 0,
    kTextCenter = 1,
    kTextRight = 2,
    kTextAlign = 3,
    kTextMid = 4,
    kTextFit = 5
};

enum TextVertMode
{
    kTextBase = 0,
    kTextBottom = 1,
    kTextVertMid = 2,
    kTextTop = 3
};

// Hundredths of a millimetre from a fixed list, or one of the three references below it.
enum LineWeight
{
    kLnWtByLwDefault = -3,
    kLnWtByBlock = -2,
    kLnWtByLayer = -1,
    kLnWt000 = 0,
    kLnWt025 = 25,
    kLnWt211 = 211
};
}  // namespace AcDb
