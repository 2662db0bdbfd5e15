// Makes single-line texts.
#pragma once

#include "hostapi/host.h"

// Sets name to the name of the drawing's current text style. Returns eOk, eNoDatabase without a
// drawing, or the host's status. The name is empty unless the status is eOk.
Acad::ErrorStatus currentTextStyleName(CString& name);

// Makes a text parallel to the plane of the UCS, on the current layer, and draws it at once. Its
// linetype is Continuous; its slant and width are those of its style.
//
// position   the anchor of the text: [ucs] if positionInUcs is true, otherwise [wcs]
// height     drawing units; if it is not above 0, the host keeps the height of a new text
// rotation   [rad] from the X axis of the UCS
// color      colour index; 0 leaves the drawing's current colour
// styleName  null means the current style; an unknown name means the style of new texts
//
// Returns the id, or a null id for an empty or null text and when the host refuses the text.
AcDbObjectId addLabelText(bool positionInUcs, const ACHAR* text, AcGePoint3d position,
                          double height, double rotation, Adesk::UInt16 color,
                          const ACHAR* styleName, AcDb::TextHorzMode horizontal,
                          AcDb::TextVertMode vertical, const ACHAR* blockName);
