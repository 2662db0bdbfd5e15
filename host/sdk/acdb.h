// The enumerations of the drawing database.
#pragma once

#include "adesk.h"
#include "acadstrc.h"

// The names of the two blocks that hold the entities of model space and of the current sheet.
#define ACDB_MODEL_SPACE ACRX_T("*Model_Space")
#define ACDB_PAPER_SPACE ACRX_T("*Paper_Space")

namespace AcDb
{
// Selects how an object is opened: by up to 256 readers, or by a single writer. kForNotify gives
// eNotImplementedYet.
enum OpenMode
{
    kForRead = 0,
    kForWrite = 1,
    kForNotify = 2
};

// Selects the entity that intersectWith extends beyond its ends. A line is extended without end in
// both directions; a polyline is never extended.
enum Intersect
{
    kOnBothOperands = 0,  // neither entity
    kExtendThis = 1,      // the entity whose intersectWith is called
    kExtendArg = 2,       // the other entity
    kExtendBoth = 3
};

// Tells whether an entity is shown. Beware of the numbers: 1 hides the entity.
enum Visibility
{
    kVisible = 0,
    kInvisible = 1
};

// Tells what the vertices of a 2D polyline mean. This host creates only k2dSimplePoly.
enum Poly2dType
{
    k2dSimplePoly = 0,
    k2dFitCurvePoly = 1,
    k2dQuadSplinePoly = 2,
    k2dCubicSplinePoly = 3
};

// Tells where the alignment point lies along the text's line. kTextMid is the middle of the whole
// text; kTextAlign and kTextFit stretch the text between its two points.
enum TextHorzMode
{
    kTextLeft = 0,
    kTextCenter = 1,
    kTextRight = 2,
    kTextAlign = 3,
    kTextMid = 4,
    kTextFit = 5
};

// Tells where the alignment point lies across the text's line: on the baseline, at the foot of the
// descenders, at half the height of the capitals, or at their top.
enum TextVertMode
{
    kTextBase = 0,
    kTextBottom = 1,
    kTextVertMid = 2,
    kTextTop = 3
};

// The plotted width of a line: hundredths of a millimetre from a fixed list (0, 5, 9, 13, 15, 18,
// 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211), or a negative
// number that tells where the width comes from. Only the values that a caller names have names
// here.
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
