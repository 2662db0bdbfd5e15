#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

#include "dbMPolygon.h"
#include "dbobjptr.h"
#include "host/database/polylinevertices.h"
#include "tests/support/emptydrawing.h"

namespace
{
const double tiny = 1e-9;

void expectNear(const AcGePoint3d& a, const AcGePoint3d& b, double tolerance = tiny)
{
    EXPECT_NEAR(a.x, b.x, tolerance);
    EXPECT_NEAR(a.y, b.y, tolerance);
    EXPECT_NEAR(a.z, b.z, tolerance);
}

AcGePoint3dArray square(double side)
{
    AcGePoint3dArray points;
    points.append(AcGePoint3d(0, 0, 0));
    points.append(AcGePoint3d(side, 0, 0));
    points.append(AcGePoint3d(side, side, 0));
    points.append(AcGePoint3d(0, side, 0));
    return points;
}

std::unique_ptr<AcDb2dPolyline> closedSquare(double side)
{
    AcGePoint3dArray points = square(side);
    return std::make_unique<AcDb2dPolyline>(AcDb::k2dSimplePoly, points, 0, Adesk::kTrue);
}

AcGeMatrix3d tilted()
{
    AcGeMatrix3d matrix = AcGeMatrix3d::planeToWorld(AcGeVector3d(1, -1, 1)) *
                          AcGeMatrix3d::rotation(0.3, AcGeVector3d::kZAxis);
    return matrix.setTranslation(AcGeVector3d(10, 20, 30));
}

TEST(Entity, propertiesOutOfRangeAreRefused)
{
    EmptyDrawing drawing;
    AcDbLine line;
    line.setDatabaseDefaults();
    EXPECT_EQ(line.setColorIndex(257), Acad::eInvalidInput);
    EXPECT_EQ(line.colorIndex(), 256);
    EXPECT_EQ(line.setColorIndex(0), Acad::eOk);
    EXPECT_EQ(line.setLineWeight(AcDb::LineWeight(26)), Acad::eInvalidInput);
    EXPECT_EQ(line.setLinetype(L"none"), Acad::eKeyNotFound);
    EXPECT_EQ(line.setLayer(L"none"), Acad::eKeyNotFound);
    EXPECT_EQ(line.setLayer(drawing->textstyle()), Acad::eWrongObjectType);
}

TEST(Entity, isNotScaledUnequally)
{
    AcGeMatrix3d stretch;
    stretch.entry[0][0] = 2;
    AcDbLine line(AcGePoint3d(), AcGePoint3d(1, 1, 0));
    EXPECT_EQ(line.transformBy(stretch), Acad::eCannotScaleNonUniformly);
    EXPECT_EQ(closedSquare(1)->transformBy(stretch), Acad::eCannotScaleNonUniformly);
    EXPECT_TRUE(line.endPoint() == AcGePoint3d(1, 1, 0));
}

TEST(Polyline, itsVerticesLieAtItsElevationWhateverTheirOwnZ)
{
    AcGePoint3dArray points;
    points.append(AcGePoint3d(0, 0, 5));
    points.append(AcGePoint3d(1, 0, -5));
    const AcDb2dPolyline polyline(AcDb::k2dSimplePoly, points, 2);
    AcGePoint3dArray stretch;
    polyline.getStretchPoints(stretch);
    ASSERT_EQ(stretch.length(), 2);
    EXPECT_TRUE(stretch[0] == AcGePoint3d(0, 0, 2));
    EXPECT_TRUE(stretch[1] == AcGePoint3d(1, 0, 2));
}

TEST(Polyline, movesWithItsPlane)
{
    auto polyline = closedSquare(4);
    const AcGeMatrix3d matrix = tilted();
    ASSERT_EQ(polyline->transformBy(matrix), Acad::eOk);
    AcGePoint3dArray points;
    polyline->getStretchPoints(points);
    const AcGePoint3dArray before = square(4);
    ASSERT_EQ(points.length(), 4);
    for (int i = 0; i < 4; ++i)
    {
        expectNear(points[i], matrix * before[i]);
    }
    EXPECT_NEAR(polyline->normal().angleTo(AcGeVector3d(1, -1, 1)), 0, tiny);
}

TEST(Polyline, itsVerticesAreEntitiesOfTheDrawing)
{
    EmptyDrawing drawing;
    AcDb2dPolyline* polyline = closedSquare(4).release();
    polyline->setDatabaseDefaults();
    polyline->setColorIndex(250);
    polyline->setVisibility(AcDb::kInvisible);
    const AcDbObjectId id = drawing.add(polyline);
    AcDbObjectPointer<AcDb2dPolyline> open(id, AcDb::kForWrite);
    const std::unique_ptr<AcDbObjectIterator> vertices(open->vertexIterator());
    int count = 0;
    for (; !vertices->done(); vertices->step())
    {
        AcDbObjectPointer<AcDb2dVertex> vertex(vertices->objectId(), AcDb::kForRead);
        ASSERT_EQ(vertex.openStatus(), Acad::eOk);
        EXPECT_EQ(vertex->ownerId(), id);
        EXPECT_EQ(vertex->colorIndex(), 250);
        EXPECT_EQ(vertex->visibility(), AcDb::kInvisible);
        ++count;
    }
    EXPECT_EQ(count, 4);
    vertices->start();
    open->erase();
    EXPECT_TRUE(vertices->objectId().isErased());
}

TEST(Polyline, ofOneVertexIsTakenButHasNoGeometry)
{
    AcGePoint3dArray points;
    points.append(AcGePoint3d(1, 1, 0));
    AcDb2dPolyline polyline(AcDb::k2dSimplePoly, points);
    AcGePoint3d near;
    EXPECT_EQ(polyline.getClosestPointTo(AcGePoint3d(), near), Acad::eInvalidInput);
}

TEST(Polyline, theNearestPointIsSoughtOnTheClosingSideToo)
{
    AcGePoint3d near;
    ASSERT_EQ(closedSquare(4)->getClosestPointTo(AcGePoint3d(-1, 2, 0), near), Acad::eOk);
    expectNear(near, AcGePoint3d(0, 2, 0));
}

struct Meeting
{
    AcGePoint3d from, to;
    AcDb::Intersect type;
    std::vector<AcGePoint3d> points;
    const char* why;
};

TEST(Intersection, ofALineWithAnOutlineGivesTheFarEndFirst)
{
    const Meeting meetings[] = {
        {{-1, 2, 0}, {5, 2, 0}, AcDb::kOnBothOperands, {{4, 2, 0}, {0, 2, 0}}, "right across"},
        {{5, 2, 0}, {-1, 2, 0}, AcDb::kOnBothOperands, {{0, 2, 0}, {4, 2, 0}}, "the other way"},
        {{1, 2, 0}, {5, 2, 0}, AcDb::kOnBothOperands, {{4, 2, 0}}, "from inside"},
        {{1, 2, 0}, {3, 2, 0}, AcDb::kOnBothOperands, {}, "wholly inside"},
        {{1, 2, 0}, {3, 2, 0}, AcDb::kExtendThis, {{4, 2, 0}, {0, 2, 0}}, "carried on"},
        {{1, 2, 0}, {3, 2, 0}, AcDb::kExtendArg, {}, "an outline is not carried on"},
        {{-1, -1, 0}, {5, 5, 0}, AcDb::kOnBothOperands, {{4, 4, 0}, {0, 0, 0}}, "corners once"},
        {{0, -1, 0}, {0, 5, 0}, AcDb::kOnBothOperands, {{0, 4, 0}, {0, 0, 0}}, "along a side"},
        {{0, 2, 0}, {2, 2, 0}, AcDb::kOnBothOperands, {{0, 2, 0}}, "from the outline"},
        {{-1, 2, 1}, {5, 2, 1}, AcDb::kOnBothOperands, {}, "above it"},
    };
    const auto outline = closedSquare(4);
    for (const Meeting& meeting : meetings)
    {
        const AcDbLine line(meeting.from, meeting.to);
        AcGePoint3dArray points;
        ASSERT_EQ(line.intersectWith(outline.get(), meeting.type, points), Acad::eOk);
        ASSERT_EQ(std::size_t(points.length()), meeting.points.size()) << meeting.why;
        for (int i = 0; i < points.length(); ++i)
        {
            SCOPED_TRACE(meeting.why);
            expectNear(points[i], meeting.points[std::size_t(i)]);
        }
    }
}

TEST(Intersection, isAppendedToWhatIsThere)
{
    AcGePoint3dArray points;
    points.append(AcGePoint3d(9, 9, 9));
    AcDbLine(AcGePoint3d(-1, 2, 0), AcGePoint3d(5, 2, 0))
        .intersectWith(closedSquare(4).get(), AcDb::kOnBothOperands, points);
    EXPECT_EQ(points.length(), 3);
}

TEST(Intersection, ofTwoLines)
{
    const AcDbLine first(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0));
    const AcDbLine second(AcGePoint3d(4, 0, 0), AcGePoint3d(3, 1, 0));
    const struct
    {
        AcDb::Intersect type;
        int count;
    } rows[] = {{AcDb::kOnBothOperands, 0},
                {AcDb::kExtendThis, 0},
                {AcDb::kExtendArg, 0},
                {AcDb::kExtendBoth, 1}};
    for (const auto& row : rows)
    {
        AcGePoint3dArray points;
        EXPECT_EQ(first.intersectWith(&second, row.type, points), Acad::eOk);
        EXPECT_EQ(points.length(), row.count);
    }
}

TEST(Intersection, ofPairsTheHostDoesNotKnowIsAStatus)
{
    const AcDbText text(AcGePoint3d(), L"a");
    AcGePoint3dArray points;
    EXPECT_EQ(AcDbLine().intersectWith(&text, AcDb::kOnBothOperands, points),
              Acad::eNotImplementedYet);
    EXPECT_EQ(closedSquare(1)->intersectWith(&text, AcDb::kOnBothOperands, points),
              Acad::eNotImplementedYet);
}

TEST(Text, theAlignmentPointRulesButForTheBaseLineModes)
{
    EmptyDrawing drawing;
    auto* text = new AcDbText();
    text->setDatabaseDefaults();
    text->setTextString(L"abcdefg");
    text->setHeight(2);
    EXPECT_EQ(text->setAlignmentPoint(AcGePoint3d(1, 1, 0)), Acad::eNotApplicable);
    text->setVerticalMode(AcDb::kTextBottom);
    text->setHorizontalMode(AcDb::kTextRight);
    text->setPosition(AcGePoint3d(50, 50, 0));
    EXPECT_EQ(text->setAlignmentPoint(AcGePoint3d(50, 50, 0)), Acad::eOk);
    const AcDbObjectId id = drawing.add(text);
    AcDbObjectPointer<AcDbText> open(id, AcDb::kForRead);
    expectNear(open->alignmentPoint(), AcGePoint3d(50, 50, 0));
    // Seven letters of six sevenths of the height, above the third that hangs below the line.
    expectNear(open->position(), AcGePoint3d(50 - 12, 50 + 2.0 / 3, 0));
}

TEST(Text, onTheBaseLineKeepsItsPosition)
{
    EmptyDrawing drawing;
    const AcDbObjectId id =
        drawing.add(new AcDbText(AcGePoint3d(3, 4, 0), L"a", AcDbObjectId::kNull, 1));
    AcDbObjectPointer<AcDbText> open(id, AcDb::kForRead);
    expectNear(open->position(), AcGePoint3d(3, 4, 0));
    expectNear(open->alignmentPoint(), AcGePoint3d(3, 4, 0));
}

TEST(Text, turnsWithItsPlane)
{
    AcDbText text(AcGePoint3d(1, 0, 0), L"a", AcDbObjectId::kNull, 1, 0.5);
    const AcGeMatrix3d matrix = tilted();
    ASSERT_EQ(text.transformBy(matrix), Acad::eOk);
    expectNear(text.position(), matrix * AcGePoint3d(1, 0, 0));
    const AcGeVector3d shown =
        AcGeMatrix3d::planeToWorld(text.normal()) *
        AcGeVector3d(std::cos(text.rotation()), std::sin(text.rotation()), 0);
    const AcGeVector3d wanted = matrix * AcGeVector3d(std::cos(0.5), std::sin(0.5), 0);
    EXPECT_NEAR(shown.angleTo(wanted), 0, 1e-7);
    EXPECT_EQ(text.height(), 1) << "a turn leaves it alone";
    text.transformBy(AcGeMatrix3d::scaling(2));
    EXPECT_NEAR(text.height(), 2, tiny);
}

TEST(Text, withoutAStyleOfItsOwnGetsTheDrawingsAtTheAppend)
{
    EmptyDrawing drawing;
    const AcDbObjectId id = drawing.add(new AcDbText(AcGePoint3d(), L"a"));
    AcDbObjectPointer<AcDbText> open(id, AcDb::kForRead);
    EXPECT_EQ(open->textStyle(), drawing->textstyle());
}

TEST(Text, valuesThatMakeNoTextAreRefused)
{
    AcDbText text;
    text.setHeight(2);
    text.setWidthFactor(0.8);
    EXPECT_EQ(text.setOblique(-1.48), Acad::eOk);
    const double bad[] = {0, -1, NAN, INFINITY};
    for (double value : bad)
    {
        EXPECT_EQ(text.setHeight(value), Acad::eInvalidInput) << value;
        EXPECT_EQ(text.height(), 2) << value;
        EXPECT_EQ(text.setWidthFactor(value), Acad::eInvalidInput) << value;
        EXPECT_EQ(text.widthFactor(), 0.8) << value;
    }
    for (double value : {1.5, -1.5, double(NAN)})
    {
        EXPECT_EQ(text.setOblique(value), Acad::eInvalidInput) << value;
        EXPECT_EQ(text.oblique(), -1.48) << value;
    }
    EXPECT_EQ(text.setTextStyle(AcDbObjectId::kNull), Acad::eWrongObjectType);
}

TEST(MPolygon, tellsInsideFromOutside)
{
    AcDbMPolygon area;
    ASSERT_EQ(area.appendLoopFromBoundary(closedSquare(4).get()), Acad::eOk);
    const struct
    {
        AcGePoint3d point;
        int loops;
    } rows[] = {
        {{2, 2, 0}, 1}, {{5, 2, 0}, 0}, {{-1, 4, 0}, 0}, {{-1, 0, 0}, 0},
        {{2, 2, 1}, 0}, {{4, 2, 0}, 1}, {{0, 0, 0}, 1},  {{4.00001, 2, 0}, 0},
    };
    for (const auto& row : rows)
    {
        AcGeIntArray loops;
        EXPECT_EQ(area.isPointInsideMPolygon(row.point, loops, 1e-6), row.loops)
            << row.point.x << ',' << row.point.y << ',' << row.point.z;
    }
}

TEST(MPolygon, takesNoOpenOrCrossingLoop)
{
    AcDbMPolygon area;
    AcGePoint3dArray points = square(4);
    const AcDb2dPolyline open(AcDb::k2dSimplePoly, points);
    EXPECT_EQ(area.appendLoopFromBoundary(&open), Acad::eInvalidInput);
    ASSERT_EQ(area.appendLoopFromBoundary(closedSquare(4).get()), Acad::eOk);
    const auto crossing = closedSquare(6);
    crossing->transformBy(AcGeMatrix3d::translation(AcGeVector3d(1, 1, 0)));
    EXPECT_EQ(area.appendLoopFromBoundary(crossing.get(), true), Acad::eInvalidInput);
    EXPECT_EQ(area.appendLoopFromBoundary(crossing.get(), false), Acad::eOk);
}

// Values with which no drawing could be saved.
struct Unfit
{
    const char* what;
    AcDbEntity* (*make)();
};

AcDbEntity* polylineAt(double elevation, double width)
{
    AcGePoint3dArray points = square(1);
    return new AcDb2dPolyline(AcDb::k2dSimplePoly, points, elevation, Adesk::kTrue, width);
}

const double huge = std::numeric_limits<double>::infinity();

AcDbEntity* textAt(double x, double height, double rotation)
{
    return new AcDbText(AcGePoint3d(x, 0, 0), L"A", AcDbObjectId::kNull, height, rotation);
}

const Unfit unfit[] = {
    {"a line's start",
     [] { return static_cast<AcDbEntity*>(new AcDbLine(AcGePoint3d(0, NAN, 0), AcGePoint3d())); }},
    {"a line's end", []
     { return static_cast<AcDbEntity*>(new AcDbLine(AcGePoint3d(), AcGePoint3d(0, 0, -huge))); }},
    {"a text's place", [] { return textAt(huge, 1, 0); }},
    {"a text's height", [] { return textAt(0, NAN, 0); }},
    {"a text's rotation", [] { return textAt(0, 1, huge); }},
    {"a rotation beyond degrees", [] { return textAt(0, 1, 1e308); }},
    {"a polyline's elevation", [] { return polylineAt(NAN, 0); }},
    {"a polyline's width", [] { return polylineAt(0, huge); }},
};

TEST(Block, anEntityWithANumberThatIsNotFiniteIsRefusedWhole)
{
    EmptyDrawing drawing;
    AcDbBlockTableRecord* space = nullptr;
    ASSERT_EQ(acdbOpenObject(space, AcDbObjectId(drawing.core().roots()[host::Root::modelSpace]),
                             AcDb::kForWrite),
              Acad::eOk);
    const std::size_t stubs = drawing.core().objects().size();
    const std::uint64_t handle = drawing.core().handles().next();
    for (const Unfit& row : unfit)
    {
        const std::unique_ptr<AcDbEntity> entity(row.make());
        AcDbObjectId id = space->objectId();
        EXPECT_EQ(space->appendAcDbEntity(id, entity.get()), Acad::eInvalidInput) << row.what;
        EXPECT_TRUE(id.isNull()) << row.what;
        EXPECT_TRUE(entity->objectId().isNull() && entity->layerId().isNull()) << row.what;
    }
    space->close();
    EXPECT_EQ(drawing.core().objects().size(), stubs);
    EXPECT_EQ(drawing.core().handles().next(), handle);
}

AcGeMatrix3d faraway()
{
    AcGeMatrix3d matrix;
    return matrix.setTranslation(AcGeVector3d(0, huge, 0));
}

TEST(Entity, ofADrawingIsNotMadeUnfitToBeSaved)
{
    const AcGePoint3d nowhere(NAN, 0, 0);
    EmptyDrawing drawing;
    const AcDbObjectId ids[] = {drawing.addLine(1, 2, 3, 4), drawing.add(textAt(5, 6, 0)),
                                drawing.add(polylineAt(7, 0))};
    AcDbObjectPointer<AcDbLine> line(ids[0], AcDb::kForWrite);
    EXPECT_EQ(line->setStartPoint(nowhere), Acad::eInvalidInput);
    EXPECT_EQ(line->setEndPoint(nowhere), Acad::eInvalidInput);
    EXPECT_EQ(line->transformBy(faraway()), Acad::eInvalidInput);
    EXPECT_TRUE(line->startPoint() == AcGePoint3d(1, 2, 0));
    EXPECT_TRUE(line->endPoint() == AcGePoint3d(3, 4, 0));

    AcDbObjectPointer<AcDbText> text(ids[1], AcDb::kForWrite);
    text->setHorizontalMode(AcDb::kTextRight);
    EXPECT_EQ(text->setPosition(nowhere), Acad::eInvalidInput);
    EXPECT_EQ(text->setAlignmentPoint(nowhere), Acad::eInvalidInput);
    EXPECT_EQ(text->setRotation(huge), Acad::eInvalidInput);
    EXPECT_EQ(text->setHeight(huge), Acad::eInvalidInput);
    EXPECT_EQ(text->transformBy(faraway()), Acad::eInvalidInput);
    EXPECT_TRUE(text->position() == AcGePoint3d(5, 0, 0));
    EXPECT_EQ(text->rotation(), 0);
    text->setHeight(1e308);  // its width, and so its place, would be beyond all numbers
    text->setTextString(L"AAAAAAAAAA");
    EXPECT_EQ(text->adjustAlignment(), Acad::eInvalidInput);

    AcDbObjectPointer<AcDb2dPolyline> outline(ids[2], AcDb::kForWrite);
    EXPECT_EQ(outline->transformBy(faraway()), Acad::eInvalidInput);
    EXPECT_EQ(outline->elevation(), 7);
    EXPECT_TRUE(host::cornersOf(*outline)[2] == AcGePoint3d(1, 1, 7));
}

// Engines compute with entities that are never seen.
TEST(Entity, ofNoDrawingMayHaveAnyNumbers)
{
    AcDbLine line;
    EXPECT_EQ(line.setStartPoint(AcGePoint3d(huge, 0, 0)), Acad::eOk);
    EXPECT_EQ(line.transformBy(faraway()), Acad::eOk);
    EXPECT_EQ(line.startPoint().x, huge);
}
}  // namespace
