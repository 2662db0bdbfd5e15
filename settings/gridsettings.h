// The record of the grid command's options.
#pragma once

#include "hostapi/host.h"

// The options of one grid. The fields down to textYScribe have the names of their keys in the
// settings file, including the mixed spelling. The last two fields are not stored there.
//
// Lengths are in drawing units. A double equal to the largest finite double and an int equal to
// 2147483647 are not set. Values from the file are not range-checked, so the code that uses a value
// must accept any number. With a LookType other than 0 and 1 the engine draws crosses, while the
// dialog and the messages treat it as 0.
struct GridSettings
{
    // Sets every option to its default.
    GridSettings();

    int Color;          // colour index
    double VertStep;    // between horizontal lines
    double HorStep;     // between vertical lines
    int LookType;       // 0: continuous lines; 1: cross marks
    double crossSize;   // length of the lines of a cross
    int WCSBasePoint;   // 0: along the axes of the world; otherwise along those of the UCS
    int delCont;        // 1: erase the outline on acceptance
    double heightText;  // height of the labels
    int iCountSigns;    // number of decimals of the labels
    int needText;       // 0: no labels; otherwise the labels are drawn
    int bXTopScribe;    // 0: no X labels on the top edge; the next seven options read alike
    int bXBottomScribe;
    int bXLeftScribe;
    int bXRightScribe;
    int bYTopScribe;
    int bYBottomScribe;
    int bYLeftScribe;
    int bYRightScribe;
    CString textXScribe;  // prefix of the X labels
    CString textYScribe;  // prefix of the Y labels

    CString textStyleName;  // text style of the labels
    AcGePoint3d basePoint;  // [wcs]; the lines and the values of the labels count from it
};
