// Enumerations of the drawing database.
#pragma once

#include "adesk.h"
#include "acadstrc.h"

// Names of the two blocks that hold what is drawn in model space and on the current sheet.
#define ACDB_MODEL_SPACE ACRX_T("*Model_Space")
#define ACDB_PAPER_SPACE ACRX_T("*Paper_Space")

namespace AcDb
{
// How an object is opened: by up to 256 readers, or by one writer alone. kForNotify gives
// eNotImplementedYet.
enum OpenMode
{
    kForRead = 0,
    kForWrite = 1,
    kForNotify = 2
};

// Which of two entities intersectWith carries on beyond its ends. A line is carried on both ways
// without end; a polyline is never carried on.
enum Intersect
{
    kOnBothOperands = 0,  // neither
    kExtendThis = 1,      // the entity that is asked
    kExtendArg = 2,       // the other one
    kExtendBoth = 3
};

// Whether an entity is shown. Mind the numbers: 1 hides it.
enum Visibility
{
    kVisible = 0,
    kInvisible = 1
};

// What the vertices of a 2D polyline mean. This host makes k2dSimplePoly only.
enum Poly2dType
{
    k2dSimplePoly = 0,
    k2dFitCurvePoly = 1,
    k2dQuadSplinePoly = 2,
    k2dCubicSplinePoly = 3
};

// Where the alignment point lies along the text's line. kTextMid is the middle of the whole text;
// kTextAlign and kTextFit stretch the text between its two points.
enum TextHorzMode
{
    kTextLeft = 0,
    kTextCenter = 1,
    kTextRight = 2,
    kTextAlign = 3,
    kTextMid = 4,
    kTextFit = 5
};

// Where the alignment point lies across the text's line: on the baseline, at the foot of the
// descenders, in the middle of the capitals or at their top.
enum TextVertMode
{
    kTextBase = 0,
    kTextBottom = 1,
    kTextVertMid = 2,
    kTextTop = 3
};

// Plotted width of a line: hundredths of a millimetre from a fixed list (0, 5, 9, 13, 15, 18, 20,
// 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211), or a negative number
// that says where the width comes from. Only the values that a caller names have names here.
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
