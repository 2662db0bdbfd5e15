// Lines, 2D polylines and texts.
#pragma once

#include <string>
#include <vector>

#include "acarray.h"
#include "dbcurve.h"

typedef AcArray<double> AcGeDoubleArray;

class AcDbLine : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLine)

    AcDbLine() {}
    AcDbLine(const AcGePoint3d& start, const AcGePoint3d& end) : m_start(start), m_end(end) {}

    AcGePoint3d startPoint() const { return m_start; }
    AcGePoint3d endPoint() const { return m_end; }
    Acad::ErrorStatus setStartPoint(const AcGePoint3d& point);
    Acad::ErrorStatus setEndPoint(const AcGePoint3d& point);

    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;
    Acad::ErrorStatus getStretchPoints(AcGePoint3dArray& points) const override;
    // With lines and 2D polylines.
    Acad::ErrorStatus intersectWith(const AcDbEntity* other, AcDb::Intersect type,
                                    AcGePoint3dArray& points, Adesk::GsMarker thisMarker = 0,
                                    Adesk::GsMarker otherMarker = 0) const override;
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& given, AcGePoint3d& onCurve,
                                        Adesk::Boolean extend = Adesk::kFalse) const override;
    Adesk::Boolean isClosed() const override { return Adesk::kFalse; }

private:
    friend struct host::ObjectAccess;

    AcGePoint3d m_start;
    AcGePoint3d m_end;
};

class AcDb2dVertex : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDb2dVertex)

    AcDb2dVertex() {}
    explicit AcDb2dVertex(const AcGePoint3d& position) : m_position(position) {}

    AcGePoint3d position() const { return m_position; }  // in the polyline's plane system (OCS)
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

private:
    friend class AcDb2dPolyline;
    AcGePoint3d m_position;
};

// Goes through the parts of an entity; deleted by its caller.
class AcDbObjectIterator
{
public:
    void start() { m_at = 0; }
    bool done() const { return m_at >= m_ids.length(); }
    void step() { ++m_at; }
    AcDbObjectId objectId() const { return m_ids[m_at]; }

private:
    friend class AcDb2dPolyline;
    AcDbObjectIdArray m_ids;
    int m_at = 0;
};

// Straight segments in one plane. The vertices are entities of their own with the polyline's
// layer, colour and linetype; they enter the database with it.
class AcDb2dPolyline : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDb2dPolyline)

    AcDb2dPolyline();
    // The z of the vertices is not used: all lie at `elevation`. Only simple polylines without
    // bulges are known; bulges other than null leave it empty.
    AcDb2dPolyline(AcDb::Poly2dType type, AcGePoint3dArray& vertices, double elevation = 0,
                   Adesk::Boolean closed = Adesk::kFalse, double defStartWidth = 0,
                   double defEndWidth = 0, AcGeDoubleArray* bulges = nullptr,
                   AcArray<Adesk::Int32>* vertexIdentifiers = nullptr);
    ~AcDb2dPolyline();

    Acad::ErrorStatus makeClosed();
    Acad::ErrorStatus makeOpen();
    Acad::ErrorStatus setLinetypeGenerationOn();
    Acad::ErrorStatus setLinetypeGenerationOff();
    bool isLinetypeGenerationOn() const { return m_linetypeGeneration; }
    double elevation() const { return m_elevation; }
    double defStartWidth() const { return m_startWidth; }
    double defEndWidth() const { return m_endWidth; }
    AcDbObjectIterator* vertexIterator() const;  // only of a polyline in a database

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

    Acad::ErrorStatus erase(Adesk::Boolean erasing = Adesk::kTrue) override;
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;
    // The vertices in order, nothing repeated for a closed one.
    Acad::ErrorStatus getStretchPoints(AcGePoint3dArray& points) const override;
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& given, AcGePoint3d& onCurve,
                                        Adesk::Boolean extend = Adesk::kFalse) const override;
    Adesk::Boolean isClosed() const override { return m_closed; }

    // The host's own: corner `index` in WCS, without a heap allocation.
    int numVertices() const { return int(m_vertices.size()); }
    AcGePoint3d vertexAt(int index) const { return m_points[std::size_t(index)]; }

private:
    friend struct host::ObjectAccess;

    void subentSetProperties() override;
    void placePoints();
    void takePoints(std::vector<AcGePoint3d> points);  // WCS, in the plane of the normal

    std::vector<AcDb2dVertex*> m_vertices;
    std::vector<AcGePoint3d> m_points;  // the vertices in WCS
    AcDbStub* m_seqEnd = nullptr;
    double m_elevation = 0;
    double m_startWidth = 0;
    double m_endWidth = 0;
    bool m_closed = false;
    bool m_linetypeGeneration = false;
};

class AcDbText : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbText)

    AcDbText();
    AcDbText(const AcGePoint3d& position, const ACHAR* text,
             AcDbObjectId style = AcDbObjectId::kNull, double height = 0, double rotation = 0);

    AcGePoint3d position() const { return m_position; }
    AcGePoint3d alignmentPoint() const { return m_alignment; }
    AcDbObjectId textStyle() const { return AcDbObjectId(m_style); }
    double height() const { return m_height; }
    double rotation() const { return m_rotation; }  // radians, from the X axis of its plane (OCS)
    double oblique() const { return m_oblique; }    // radians
    double widthFactor() const { return m_widthFactor; }
    const ACHAR* textStringConst() const { return m_text.c_str(); }
    AcDb::TextHorzMode horizontalMode() const { return m_horizontal; }
    AcDb::TextVertMode verticalMode() const { return m_vertical; }

    // eInvalidInput: an angle over 85 degrees, a factor or height that is not a positive number.
    Acad::ErrorStatus setPosition(const AcGePoint3d& point);
    // eNotApplicable while the position rules (kTextLeft with kTextBase).
    Acad::ErrorStatus setAlignmentPoint(const AcGePoint3d& point);
    Acad::ErrorStatus setTextStyle(AcDbObjectId style);
    Acad::ErrorStatus setOblique(double angle);
    Acad::ErrorStatus setWidthFactor(double factor);
    Acad::ErrorStatus setHeight(double height);
    Acad::ErrorStatus setRotation(double angle);
    Acad::ErrorStatus setTextString(const ACHAR* text);
    Acad::ErrorStatus setVerticalMode(AcDb::TextVertMode mode);
    Acad::ErrorStatus setHorizontalMode(AcDb::TextHorzMode mode);
    // Moves the position to where the alignment point puts the text. The host does so by itself
    // when a text in a database is closed. Widths are estimated: there are no fonts here.
    Acad::ErrorStatus adjustAlignment(const AcDbDatabase* database = nullptr);

    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

private:
    bool positionRules() const;

    AcGePoint3d m_position;
    AcGePoint3d m_alignment;
    std::wstring m_text;
    AcDbStub* m_style = nullptr;
    double m_height = 0;
    double m_rotation = 0;
    double m_oblique = 0;
    double m_widthFactor = 1;
    AcDb::TextHorzMode m_horizontal = AcDb::kTextLeft;
    AcDb::TextVertMode m_vertical = AcDb::kTextBase;
};
