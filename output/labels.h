// Single-line texts.
#pragma once

#include "app/host.h"

// Name of the drawing's current text style. On any status but eOk the name is empty.
Acad::ErrorStatus currentTextStyleName(CString& name);

// Makes a text with slant and width of its style, Continuous, on the current layer, and shows it.
//
// position   anchor of the text, [ucs] when positionInUcs, else [wcs]; the text lies in the UCS
// plane height     drawing units; the host keeps its own for one that is not above 0 rotation [rad]
// from the X axis of the UCS color      index; 0 leaves the drawing's current colour styleName
// null: the current style; unknown: the style that new texts have Null id for an empty text and
// when the host refuses.
AcDbObjectId addLabelText(bool positionInUcs, const ACHAR* text, AcGePoint3d position,
                          double height, double rotation, Adesk::UInt16 color,
                          const ACHAR* styleName, AcDb::TextHorzMode horizontal,
                          AcDb::TextVertMode vertical, const ACHAR* blockName);
