#include <cmath>
#include <cwchar>

#include "dbents.h"
#include "host/basics/angle.h"
#include "host/database/fitness.h"
#include "host/database/intersections.h"
#include "host/database/packing.h"
#include "host/geometry/ocs.h"

ACRX_DEFINE_MEMBERS(AcDbText, AcDbEntity)

namespace
{
ACHAR* copyOf(const ACHAR* text)
{
    const std::size_t units = std::wcslen(text) + 1;
    return std::wmemcpy(new ACHAR[units], text, units);
}
}  // namespace

AcDbText::AcDbText() : m_text(copyOf(L"")) {}

AcDbText::AcDbText(const AcGePoint3d& position, const ACHAR* text, AcDbObjectId style,
                   double height, double rotation)
    : m_position(position),
      m_text(copyOf(text != nullptr ? text : L"")),
      m_style(style.stub()),
      m_height(height),
      m_rotation(rotation)
{
}

AcDbText::~AcDbText()
{
    delete[] m_text;
}

bool AcDbText::positionRules() const
{
    return m_vertical == AcDb::kTextBase &&
           (m_horizontal == AcDb::kTextLeft || m_horizontal == AcDb::kTextAlign ||
            m_horizontal == AcDb::kTextFit);
}

Acad::ErrorStatus AcDbText::setPosition(const AcGePoint3d& point)
{
    assertWriteEnabled("AcDbText::setPosition");
    if (host::isInDrawing(*this) && !host::isFitInPlane(point, normal()))
    {
        return Acad::eInvalidInput;
    }
    m_position = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setAlignmentPoint(const AcGePoint3d& point)
{
    assertWriteEnabled("AcDbText::setAlignmentPoint");
    if (m_horizontal == AcDb::kTextLeft && m_vertical == AcDb::kTextBase)
    {
        return Acad::eNotApplicable;
    }
    if (host::isInDrawing(*this) && !host::isFitInPlane(point, normal()))
    {
        return Acad::eInvalidInput;
    }
    m_alignment = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setTextStyle(AcDbObjectId style)
{
    assertWriteEnabled("AcDbText::setTextStyle");
    if (style.isNull() || host::typeOf(style.stub()) != AcDbTextStyleTableRecord::desc())
    {
        return Acad::eWrongObjectType;
    }
    m_style = style.stub();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setOblique(double angle)
{
    assertWriteEnabled("AcDbText::setOblique");
    const double limit = host::toRadians(85);
    if (!(std::fabs(angle) <= limit))
    {
        return Acad::eInvalidInput;
    }
    m_oblique = angle;
    return Acad::eOk;
}

namespace
{
bool isPositive(double value)
{
    return value > 0 && std::isfinite(value);
}
}  // namespace

Acad::ErrorStatus AcDbText::setWidthFactor(double factor)
{
    assertWriteEnabled("AcDbText::setWidthFactor");
    if (!isPositive(factor))
    {
        return Acad::eInvalidInput;
    }
    m_widthFactor = factor;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setHeight(double height)
{
    assertWriteEnabled("AcDbText::setHeight");
    if (!isPositive(height))
    {
        return Acad::eInvalidInput;
    }
    m_height = height;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setRotation(double angle)
{
    assertWriteEnabled("AcDbText::setRotation");
    if (host::isInDrawing(*this) && !host::isAngle(angle))
    {
        return Acad::eInvalidInput;
    }
    m_rotation = angle;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setTextString(const ACHAR* text)
{
    assertWriteEnabled("AcDbText::setTextString");
    if (text == nullptr)
    {
        return Acad::eInvalidInput;
    }
    ACHAR* const copy = copyOf(text);  // `text` may be the old text, which is deleted below
    delete[] m_text;
    m_text = copy;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setVerticalMode(AcDb::TextVertMode mode)
{
    assertWriteEnabled("AcDbText::setVerticalMode");
    m_vertical = mode;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setHorizontalMode(AcDb::TextHorzMode mode)
{
    assertWriteEnabled("AcDbText::setHorizontalMode");
    m_horizontal = mode;
    return Acad::eOk;
}

namespace
{
// Returns how far the anchor lies to the right of the text's start, in widths of the text.
double anchorAcross(AcDb::TextHorzMode mode)
{
    switch (mode)
    {
        case AcDb::kTextCenter:
        case AcDb::kTextMid:
            return 0.5;
        case AcDb::kTextRight:
            return 1;
        default:
            return 0;
    }
}

// Returns how far the anchor lies above the base line, in text heights. In the host's stroke fonts,
// letters reach a third of their height below the line.
double anchorAbove(AcDb::TextHorzMode horizontal, AcDb::TextVertMode vertical)
{
    if (horizontal == AcDb::kTextMid || vertical == AcDb::kTextVertMid)
    {
        return 0.5;
    }
    return vertical == AcDb::kTextBottom ? -1.0 / 3 : vertical == AcDb::kTextTop ? 1 : 0;
}
}  // namespace

Acad::ErrorStatus AcDbText::adjustAlignment(const AcDbDatabase*)
{
    assertWriteEnabled("AcDbText::adjustAlignment");
    if (positionRules())
    {
        if (m_horizontal == AcDb::kTextLeft)
        {
            m_alignment = m_position;
        }
        return Acad::eOk;
    }
    // Six sevenths of the height is the mean advance of a letter in the host's stroke fonts.
    const double width = double(std::wcslen(m_text)) * m_height * m_widthFactor * 6 / 7;
    const double across = -anchorAcross(m_horizontal) * width;
    const double up = -anchorAbove(m_horizontal, m_vertical) * m_height;
    const double c = std::cos(m_rotation);
    const double s = std::sin(m_rotation);
    const AcGeVector3d shift(across * c - up * s, across * s + up * c, 0);
    const AcGePoint3d position = m_alignment + host::Ocs(normal()).toWorld(shift);
    if (host::isInDrawing(*this) && !host::isFitInPlane(position, normal()))
    {
        return Acad::eInvalidInput;
    }
    m_position = position;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::transformBy(const AcGeMatrix3d& matrix)
{
    assertWriteEnabled("AcDbText::transformBy");
    if (!host::keepsAngles(matrix))
    {
        return Acad::eCannotScaleNonUniformly;
    }
    const AcGeVector3d along = matrix * host::Ocs(normal()).directionWcs(m_rotation);
    const AcGeVector3d up = (matrix * normal()).normal();
    const AcGePoint3d position = matrix * m_position;
    const AcGePoint3d alignment = matrix * m_alignment;
    // A rotation keeps the height exactly.
    const double scale = along.length();
    const double height = m_height * (std::fabs(scale - 1) > 1e-12 ? scale : 1);
    const bool staysFit = host::isFitInPlane(position, up) && host::isFitInPlane(alignment, up) &&
                          std::isfinite(height);
    if (host::isInDrawing(*this) && !staysFit)
    {
        return Acad::eInvalidInput;
    }
    m_position = position;
    m_alignment = alignment;
    setNormal(up);
    m_rotation = host::Ocs(up).angleOf(along);
    m_height = height;
    return Acad::eOk;
}
