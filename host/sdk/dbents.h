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

    // From start to end [wcs]; 0,0,0 to 0,0,0 without arguments.
    AcDbLine() {}
    AcDbLine(const AcGePoint3d& start, const AcGePoint3d& end) : m_start(start), m_end(end) {}

    // The ends [wcs].
    AcGePoint3d startPoint() const { return m_start; }
    AcGePoint3d endPoint() const { return m_end; }
    // Move one end [wcs] [write]. eInvalidInput for a point of a drawing that is not finite.
    Acad::ErrorStatus setStartPoint(const AcGePoint3d& point);
    Acad::ErrorStatus setEndPoint(const AcGePoint3d& point);

    // As said in the base classes: the stretch points are the start and the end.
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

// A vertex of a 2D polyline. The polyline makes it and owns it until both are in a database.
class AcDb2dVertex : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDb2dVertex)

    // At 0,0,0, or at a position in the plane system (OCS) of its polyline.
    AcDb2dVertex() {}
    explicit AcDb2dVertex(const AcGePoint3d& position) : m_position(position) {}

    // In the polyline's plane system (OCS); z is the polyline's elevation.
    AcGePoint3d position() const { return m_position; }
    // eNotApplicable: a vertex lies in the plane of its polyline and moves with that.
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

private:
    friend class AcDb2dPolyline;
    AcGePoint3d m_position;
};

// Goes through the vertices of a polyline, as they were when the iterator was made. The caller
// deletes it.
class AcDbObjectIterator
{
public:
    // Order of calls: start, then while not done: objectId, step. A new iterator is at its start.
    void start() { m_at = 0; }
    bool done() const { return m_at >= m_ids.length(); }
    void step() { ++m_at; }
    // Id of the vertex; once the iterator is done it ends the run.
    AcDbObjectId objectId() const { return m_ids[m_at]; }

private:
    friend class AcDb2dPolyline;
    AcDbObjectIdArray m_ids;
    int m_at = 0;
};

// Straight segments in one plane. The vertices are entities of their own with the polyline's layer,
// colour and linetype. They belong to the polyline and enter the database with it.
class AcDb2dPolyline : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDb2dPolyline)

    // An open polyline without vertices.
    AcDb2dPolyline();
    // Through copies of the vertices, in the XY plane [wcs]: their z is not used, and all lie at
    // `elevation`. Lengths and widths are in drawing units. Only simple polylines without bulges
    // are known; another type, or bulges that are not null, leave it without vertices.
    AcDb2dPolyline(AcDb::Poly2dType type, AcGePoint3dArray& vertices, double elevation = 0,
                   Adesk::Boolean closed = Adesk::kFalse, double defStartWidth = 0,
                   double defEndWidth = 0, AcGeDoubleArray* bulges = nullptr,
                   AcArray<Adesk::Int32>* vertexIdentifiers = nullptr);
    ~AcDb2dPolyline();

    // Join the end to the start or not, run a dashed linetype through the corners or begin it anew
    // at each; eOk [write].
    Acad::ErrorStatus makeClosed();
    Acad::ErrorStatus makeOpen();
    Acad::ErrorStatus setLinetypeGenerationOn();
    Acad::ErrorStatus setLinetypeGenerationOff();
    bool isLinetypeGenerationOn() const { return m_linetypeGeneration; }
    // Z of all vertices in the plane system (OCS), and the widths that segments start and end with,
    // in drawing units.
    double elevation() const { return m_elevation; }
    double defStartWidth() const { return m_startWidth; }
    double defEndWidth() const { return m_endWidth; }
    // Goes through the vertices [read]; the caller deletes it. It is empty while the polyline is in
    // no database.
    AcDbObjectIterator* vertexIterator() const;

    // As said in AcDbEntity; the vertices get the property with doSubents only.
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

    // As said in AcDbObject and AcDbEntity; the vertices are erased and moved with it.
    Acad::ErrorStatus erase(Adesk::Boolean erasing = Adesk::kTrue) override;
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;
    // The vertices in their order [wcs]; a closed polyline does not repeat the first one.
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
// Which point rules: with kTextBase and kTextLeft, kTextAlign or kTextFit the position does. In all
// other modes the alignment point does, and the position is computed from it when the text is
// closed in a database. So a caller sets the modes first, then the alignment point.
class AcDbText : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbText)

    // A text at position [wcs], in the XY plane, with copies of the arguments; a null text is
    // empty. The height is in drawing units, the rotation [rad]. A text without a style gets the
    // current one when it is appended. A new text has no slant and width factor 1.
    AcDbText();
    AcDbText(const AcGePoint3d& position, const ACHAR* text,
             AcDbObjectId style = AcDbObjectId::kNull, double height = 0, double rotation = 0);
    ~AcDbText();

    // Left end of its baseline and the point that it is aligned to [wcs].
    AcGePoint3d position() const { return m_position; }
    AcGePoint3d alignmentPoint() const { return m_alignment; }
    // Its style; null until it is set or the text is appended.
    AcDbObjectId textStyle() const { return AcDbObjectId(m_style); }
    // Height of the capitals in drawing units.
    double height() const { return m_height; }
    // Direction from the X axis of its plane (OCS), and slant from the upright [rad].
    double rotation() const { return m_rotation; }
    double oblique() const { return m_oblique; }
    // Width of the letters as a multiple of that of the style's font.
    double widthFactor() const { return m_widthFactor; }
    // The text [borrowed], good until it is changed.
    const ACHAR* textStringConst() const { return m_text; }
    // Where the alignment point lies in the text.
    AcDb::TextHorzMode horizontalMode() const { return m_horizontal; }
    AcDb::TextVertMode verticalMode() const { return m_vertical; }

    // The setters need the text open for write [write].
    //
    // Sets the position [wcs]. eInvalidInput for a point of a drawing that is not finite.
    Acad::ErrorStatus setPosition(const AcGePoint3d& point);
    // Sets the alignment point [wcs]. eNotApplicable with kTextLeft and kTextBase; eInvalidInput
    // for a point of a drawing that is not finite.
    Acad::ErrorStatus setAlignmentPoint(const AcGePoint3d& point);
    // eWrongObjectType for an id that is null or of another kind of object.
    Acad::ErrorStatus setTextStyle(AcDbObjectId style);
    // [rad]. eInvalidInput beyond 85 degrees either way.
    Acad::ErrorStatus setOblique(double angle);
    // eInvalidInput unless the number is positive and finite.
    Acad::ErrorStatus setWidthFactor(double factor);
    Acad::ErrorStatus setHeight(double height);
    // [rad]. eInvalidInput for an angle of a drawing that is not finite.
    Acad::ErrorStatus setRotation(double angle);
    // The text is copied. eInvalidInput for null.
    Acad::ErrorStatus setTextString(const ACHAR* text);
    // The points stay as they are until the text is aligned; eOk.
    Acad::ErrorStatus setVerticalMode(AcDb::TextVertMode mode);
    Acad::ErrorStatus setHorizontalMode(AcDb::TextHorzMode mode);
    // Moves the position to where the alignment point puts the text [write]; the host does so by
    // itself when a text in a database is closed. Where the position rules, the alignment point of
    // kTextLeft follows it. Widths are estimated: there are no fonts here. The argument has no
    // effect. eInvalidInput when the position of a text in a drawing would not be finite.
    Acad::ErrorStatus adjustAlignment(const AcDbDatabase* database = nullptr);

    // As said in AcDbEntity: both points, the plane, the direction and the height follow.
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
