// The options of the grid command.
#pragma once

#include "hostapi/host.h"

// Made with the defaults. The fields down to textYScribe carry the names of their keys in the
// settings file, mixed spelling and all; the last two are never written there.
//
// Lengths are in drawing units. A double equal to the largest finite double and an int equal to
// 2147483647 are not set. Values out of the file are not range-checked: whoever uses one copes
// with whatever number it holds.
struct GridSettings
{
    GridSettings();

    int Color;  // colour index
    double VertStep;
    double HorStep;
    int LookType;  // 0 continuous lines, 1 cross marks; users differ on any other value
    double crossSize;
    int WCSBasePoint;
    int delCont;  // 1: erase the outline on acceptance
    double heightText;
    int iCountSigns;  // decimals of the labels
    int needText;     // not 0: draw the labels
    int bXTopScribe;
    int bXBottomScribe;
    int bXLeftScribe;
    int bXRightScribe;
    int bYTopScribe;
    int bYBottomScribe;
    int bYLeftScribe;
    int bYRightScribe;
    CString textXScribe;  // prefix of the X labels
    CString textYScribe;

    CString textStyleName;
    AcGePoint3d basePoint;  // [wcs]
};
