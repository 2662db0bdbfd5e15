// Lines, 2D polylines and texts.
#pragma once

#include "acarray.h"
#include "dbcurve.h"

// An array of numbers; see acarray.h.
typedef AcArray<double> AcGeDoubleArray;

// A straight line in space.
class AcDbLine : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLine)

    // Create a line from start to end [wcs], or from 0,0,0 to 0,0,0.
    AcDbLine() {}
    AcDbLine(const AcGePoint3d& start, const AcGePoint3d& end) : m_start(start), m_end(end) {}

    // Return the ends [wcs].
    AcGePoint3d startPoint() const { return m_start; }
    AcGePoint3d endPoint() const { return m_end; }
    // Move one end [wcs] [write]. Return eInvalidInput when the line is in a drawing and the point
    // is not finite.
    Acad::ErrorStatus setStartPoint(const AcGePoint3d& point);
    Acad::ErrorStatus setEndPoint(const AcGePoint3d& point);

    // Do what the base classes describe. The stretch points are the start and the end.
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;
    Acad::ErrorStatus getStretchPoints(AcGePoint3dArray& points) const override;
    Acad::ErrorStatus intersectWith(const AcDbEntity* other, AcDb::Intersect type,
                                    AcGePoint3dArray& points, Adesk::GsMarker thisMarker = 0,
                                    Adesk::GsMarker otherMarker = 0) const override;
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& given, AcGePoint3d& onCurve,
                                        Adesk::Boolean extend = Adesk::kFalse) const override;
    Adesk::Boolean isClosed() const override { return Adesk::kFalse; }

    struct Internals;  // the host's own

private:
    AcGePoint3d m_start;
    AcGePoint3d m_end;
};

// A vertex of a 2D polyline. The polyline creates the vertex and owns it until both are in a
// database.
class AcDb2dVertex : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDb2dVertex)

    // Create a vertex at 0,0,0 or at a position in its polyline's plane system (OCS).
    AcDb2dVertex() {}
    explicit AcDb2dVertex(const AcGePoint3d& position) : m_position(position) {}

    // Returns the position in the polyline's plane system (OCS); z is the polyline's elevation.
    AcGePoint3d position() const { return m_position; }
    // Returns eNotApplicable: a vertex lies in the plane of its polyline and moves with it.
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

private:
    friend class AcDb2dPolyline;
    AcGePoint3d m_position;
};

// Iterates over the vertices that a polyline had when the iterator was created. The caller deletes
// the iterator.
class AcDbObjectIterator
{
public:
    // Order of calls: start; then, until done returns true, objectId and step. A new iterator is at
    // its start.
    void start() { m_at = 0; }
    bool done() const { return m_at >= m_ids.length(); }
    void step() { ++m_at; }
    // Returns the id of the vertex. Calling it after the last vertex ends the run.
    AcDbObjectId objectId() const { return m_ids[m_at]; }

private:
    friend class AcDb2dPolyline;
    AcDbObjectIdArray m_ids;
    int m_at = 0;
};

// Straight segments in one plane. The vertices are separate entities with the polyline's layer,
// colour and linetype. They belong to the polyline and join the database with it.
class AcDb2dPolyline : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDb2dPolyline)

    // Creates an open polyline without vertices.
    AcDb2dPolyline();
    // Creates a polyline through copies of the vertices [wcs]. Their z is ignored: the polyline
    // lies at `elevation` in the XY plane. Lengths and widths are in drawing units. This host
    // supports only simple polylines without bulges; another type, or bulges that are not null,
    // give a polyline without vertices.
    AcDb2dPolyline(AcDb::Poly2dType type, AcGePoint3dArray& vertices, double elevation = 0,
                   Adesk::Boolean closed = Adesk::kFalse, double defStartWidth = 0,
                   double defEndWidth = 0, AcGeDoubleArray* bulges = nullptr,
                   AcArray<Adesk::Int32>* vertexIdentifiers = nullptr);
    ~AcDb2dPolyline();

    // Open and close the polyline, and set whether a dashed linetype runs through the corners or
    // begins anew at each vertex [write]. The setters return eOk.
    Acad::ErrorStatus makeClosed();
    Acad::ErrorStatus makeOpen();
    Acad::ErrorStatus setLinetypeGenerationOn();
    Acad::ErrorStatus setLinetypeGenerationOff();
    bool isLinetypeGenerationOn() const { return m_linetypeGeneration; }
    // Return the z of all vertices in the plane system (OCS), and the widths at the start and the
    // end of segments, in drawing units.
    double elevation() const { return m_elevation; }
    double defStartWidth() const { return m_startWidth; }
    double defEndWidth() const { return m_endWidth; }
    // Returns a new iterator over the vertices [read], which the caller deletes. It visits no
    // vertex while the polyline is in no database.
    AcDbObjectIterator* vertexIterator() const;

    // Do what AcDbEntity describes. The vertices get the property only when doSubents is set.
    Acad::ErrorStatus setColorIndex(Adesk::UInt16 color,
                                    Adesk::Boolean doSubents = Adesk::kTrue) override;
    using AcDbEntity::setLayer;
    Acad::ErrorStatus setLayer(AcDbObjectId id, Adesk::Boolean doSubents = Adesk::kTrue,
                               bool allowHiddenLayer = false) override;
    using AcDbEntity::setLinetype;
    Acad::ErrorStatus setLinetype(AcDbObjectId id,
                                  Adesk::Boolean doSubents = Adesk::kTrue) override;
    Acad::ErrorStatus setLineWeight(AcDb::LineWeight weight,
                                    Adesk::Boolean doSubents = Adesk::kTrue) override;
    Acad::ErrorStatus setVisibility(AcDb::Visibility visibility,
                                    Adesk::Boolean doSubents = Adesk::kTrue) override;

    // Erase and transform the polyline with its vertices, as AcDbObject and AcDbEntity describe.
    Acad::ErrorStatus erase(Adesk::Boolean erasing = Adesk::kTrue) override;
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;
    // The stretch points are the vertices in their order [wcs]; a closed polyline does not repeat
    // the first one.
    Acad::ErrorStatus getStretchPoints(AcGePoint3dArray& points) const override;
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& given, AcGePoint3d& onCurve,
                                        Adesk::Boolean extend = Adesk::kFalse) const override;
    Adesk::Boolean isClosed() const override { return m_closed; }

    struct Internals;  // the host's own

private:
    void subentSetProperties() override;

    Internals* m_internals;
    double m_elevation = 0;
    double m_startWidth = 0;
    double m_endWidth = 0;
    bool m_closed = false;
    bool m_linetypeGeneration = false;
};

// One line of text.
//
// One of two points determines where the text lies. In kTextBase with kTextLeft, kTextAlign or
// kTextFit it is the position. In every other mode it is the alignment point, and the host computes
// the position from it when the text is closed in a database. A caller therefore sets the modes
// first and the alignment point after them.
class AcDbText : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbText)

    // Create a text at position [wcs], in the XY plane, with copies of the arguments. A null text
    // counts as empty. The height is in drawing units, the rotation is [rad]. A text without a
    // style gets the current one when it is appended. A new text has no slant and width factor 1.
    AcDbText();
    AcDbText(const AcGePoint3d& position, const ACHAR* text,
             AcDbObjectId style = AcDbObjectId::kNull, double height = 0, double rotation = 0);
    ~AcDbText();

    // Return the left end of the baseline, and the point that the text is aligned to [wcs].
    AcGePoint3d position() const { return m_position; }
    AcGePoint3d alignmentPoint() const { return m_alignment; }
    // Returns the style; the id is null until it is set or the text is appended.
    AcDbObjectId textStyle() const { return AcDbObjectId(m_style); }
    // Returns the height of the capitals in drawing units.
    double height() const { return m_height; }
    // Return the direction from the X axis of the text's plane (OCS), and the slant from the
    // upright [rad].
    double rotation() const { return m_rotation; }
    double oblique() const { return m_oblique; }
    // Returns the width of the letters as a multiple of their width in the style's font.
    double widthFactor() const { return m_widthFactor; }
    // Returns the text [borrowed], good until it is changed.
    const ACHAR* textStringConst() const { return m_text; }
    // Return where the alignment point lies in the text.
    AcDb::TextHorzMode horizontalMode() const { return m_horizontal; }
    AcDb::TextVertMode verticalMode() const { return m_vertical; }

    // The setters need the text open for write [write]. They return eOk unless their comment names
    // another status.
    //
    // Sets the position [wcs]. Returns eInvalidInput when the text is in a drawing and the point is
    // not finite.
    Acad::ErrorStatus setPosition(const AcGePoint3d& point);
    // Sets the alignment point [wcs]. Returns eNotApplicable with kTextLeft and kTextBase, and
    // eInvalidInput when the text is in a drawing and the point is not finite.
    Acad::ErrorStatus setAlignmentPoint(const AcGePoint3d& point);
    // Sets the style. Returns eWrongObjectType for a null id or the id of another kind of object.
    Acad::ErrorStatus setTextStyle(AcDbObjectId style);
    // Sets the slant from the upright [rad]. Returns eInvalidInput beyond 85 degrees in either
    // direction.
    Acad::ErrorStatus setOblique(double angle);
    // Set the width factor, and the height in drawing units. Return eInvalidInput unless the number
    // is positive and finite.
    Acad::ErrorStatus setWidthFactor(double factor);
    Acad::ErrorStatus setHeight(double height);
    // Sets the rotation [rad]. Returns eInvalidInput when the text is in a drawing and the angle is
    // not finite.
    Acad::ErrorStatus setRotation(double angle);
    // Sets the text to a copy of the argument. Returns eInvalidInput for null.
    Acad::ErrorStatus setTextString(const ACHAR* text);
    // Set where the alignment point lies in the text. The points stay as they are until the text is
    // aligned.
    Acad::ErrorStatus setVerticalMode(AcDb::TextVertMode mode);
    Acad::ErrorStatus setHorizontalMode(AcDb::TextHorzMode mode);
    // Moves the position to where the alignment point puts the text [write]. The host calls it when
    // a text in a database is closed. Where the position determines the place of the text, the
    // alignment point of a kTextLeft text follows the position. Widths are estimated because the
    // host has no fonts. The argument has no effect. Returns eInvalidInput when the position of a
    // text in a drawing would not be finite.
    Acad::ErrorStatus adjustAlignment(const AcDbDatabase* database = nullptr);

    // Transforms the text as AcDbEntity describes. Both points, the plane, the direction and the
    // height follow the matrix.
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

private:
    bool positionRules() const;

    AcGePoint3d m_position;
    AcGePoint3d m_alignment;
    ACHAR* m_text;
    AcDbStub* m_style = nullptr;
    double m_height = 0;
    double m_rotation = 0;
    double m_oblique = 0;
    double m_widthFactor = 1;
    AcDb::TextHorzMode m_horizontal = AcDb::kTextLeft;
    AcDb::TextVertMode m_vertical = AcDb::kTextBase;
};
