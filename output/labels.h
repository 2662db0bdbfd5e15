// Single-line texts.
#pragma once

#include "hostapi/host.h"

// Name of the drawing's current text style. On any status but eOk the name is empty.
Acad::ErrorStatus currentTextStyleName(CString& name);

// Makes a text with slant and width of its style, Continuous, on the current layer, and shows it.
//
// The position [ucs] when positionInUcs, else [wcs], is the anchor of the text, which lies in the
// plane of the UCS. The height is in drawing units; for one that is not above 0 the host keeps its
// own. The rotation [rad] counts from the X axis of the UCS.
//
// Colour index 0 leaves the drawing's current colour. A null styleName is the current style, an
// unknown one the style that new texts have.
//
// Null id for an empty text and when the host refuses.
AcDbObjectId addLabelText(bool positionInUcs, const ACHAR* text, AcGePoint3d position,
                          double height, double rotation, Adesk::UInt16 color,
                          const ACHAR* styleName, AcDb::TextHorzMode horizontal,
                          AcDb::TextVertMode vertical, const ACHAR* blockName);
