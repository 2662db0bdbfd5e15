#include "output/labels.h"

#include "output/entities.h"
#include "output/frame.h"

Acad::ErrorStatus currentTextStyleName(CString& name)
{
    name.Empty();
    AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
    if (database == nullptr)
    {
        return Acad::eNoDatabase;
    }
    AcDbSymbolTableRecordPointer<AcDbTextStyleTableRecord> style(database->textstyle(),
                                                                 AcDb::kForRead);
    if (style.openStatus() != Acad::eOk)
    {
        return style.openStatus();
    }
    ACHAR* hostName = nullptr;
    const Acad::ErrorStatus status = style->getName(hostName);
    if (hostName != nullptr)
    {
        name += hostName;
    }
    acutDelBuffer(hostName);
    return status;
}

namespace
{
// Gives the text a style with its slant and width. If the style is missing, the text keeps the
// style of new texts, slant 0 and width 1. The fixed height of a style is ignored, because the user
// sets the height of labels with a separate option.
void setStyle(AcDbText* text, const ACHAR* styleName)
{
    AcDbSymbolTablePointer<AcDbTextStyleTable> styles(
        acdbHostApplicationServices()->workingDatabase(), AcDb::kForRead);
    AcDbObjectId id;
    if (styles.openStatus() != Acad::eOk || styles->getAt(styleName, id, false) != Acad::eOk)
    {
        return;
    }
    text->setTextStyle(id);
    AcDbSymbolTableRecordPointer<AcDbTextStyleTableRecord> style(id, AcDb::kForRead);
    if (style.openStatus() == Acad::eOk)
    {
        text->setOblique(style->obliquingAngle());
        text->setWidthFactor(style->xScale());
    }
}

// Anchors the text at the position. The modes are set before the points, because the host refuses
// an alignment point while the text still sits on its baseline.
void anchor(AcDbText* text, const AcGePoint3d& position, AcDb::TextHorzMode horizontal,
            AcDb::TextVertMode vertical)
{
    text->setVerticalMode(vertical);
    text->setHorizontalMode(horizontal);
    text->setPosition(position);
    text->setAlignmentPoint(position);
}
}  // namespace

AcDbObjectId addLabelText(bool positionInUcs, const ACHAR* text, AcGePoint3d position,
                          double height, double rotation, Adesk::UInt16 color,
                          const ACHAR* styleName, AcDb::TextHorzMode horizontal,
                          AcDb::TextVertMode vertical, const ACHAR* blockName)
{
    if (text == nullptr || *text == 0)
    {
        return AcDbObjectId::kNull;
    }
    const AcGePoint3d positionUcs = positionInUcs ? position : toUcs(position);
    CString currentStyle;
    if (styleName == nullptr)
    {
        currentTextStyleName(currentStyle);
        styleName = currentStyle;
    }
    AcDbText* label = new AcDbText();
    label->setDatabaseDefaults();
    setStyle(label, styleName);
    label->setHeight(height);
    if (color != 0)
    {
        label->setColorIndex(color, true);
    }
    label->setRotation(rotation);
    label->setTextString(text);
    label->setLinetype(L"Continuous", true);
    anchor(label, positionUcs, horizontal, vertical);
    return showEntity(label, blockName);
}
