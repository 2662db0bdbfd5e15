// One entity by the tables of the schema.
#include "host/plot/entitytags.h"

#include <gtest/gtest.h>

#include "host/dxf/schema/curves.h"
#include "host/dxf/schema/references.h"
#include "host/plot/tagcursor.h"
#include "tests/plot/drawn.h"

using namespace host::plot;

namespace
{
// A drawing of one entity.
struct OneEntity
{
    explicit OneEntity(const std::string& tags)
        : file(host::dxf::TagFile::fromText(
              tests::dxfText("0 SECTION 2 ENTITIES 0 " + tags + " 0 ENDSEC 0 EOF"), "FILE"))
    {
    }

    const host::dxf::TagFile file;
    const host::dxf::CodePage codePage{file.release(), ""};
    const host::dxf::TagSource source{file, codePage};
    const EntityTags entity{source, file.records("ENTITIES")[0]};
};

template <class Table>
typename Table::RecordType readFrom(const std::string& tags, const Table& table)
{
    return OneEntity(tags).entity.read(table);
}
}  // namespace

TEST(EntityTags, anAttributeThatIsNotStatedHasItsDefault)
{
    const auto insert = readFrom("INSERT 2 A", schema::insert::table);
    EXPECT_EQ(insert.scaleX, 1);
    EXPECT_EQ(insert.columns, 1);
    EXPECT_EQ(insert.rowSpacing, 0);
    EXPECT_EQ(insert.normal, AcGeVector3d(0, 0, 1));
    const auto ellipse = readFrom("ELLIPSE 10 1", schema::ellipse::table);
    EXPECT_EQ(ellipse.ratio, 1);
    EXPECT_EQ(ellipse.end, 2 * M_PI);
    const auto text = readFrom("MTEXT 10 1", schema::paragraphs::table);
    EXPECT_EQ(text.attachment, 1);
    EXPECT_EQ(text.lineSpacing, 1);
    EXPECT_FALSE(text.direction);
    const auto look = readFrom("POINT 10 1", schema::entity::look);
    EXPECT_EQ(look.color, schema::entity::colorByLayer);
    EXPECT_FALSE(look.trueColor);
}

TEST(EntityTags, onlyTheEntitysOwnFirstTagOfACodeCounts)
{
    const struct
    {
        const char* what;
        const char* tags;
    } rows[] = {
        {"the first of two", "CIRCLE 40 2 40 3"},
        {"before the list of an application", "CIRCLE 102 {ACAD_X 40 3 102 } 40 2"},
        {"before the data of an application", "CIRCLE 40 2 1001 ACAD 40 3"},
        {"before an embedded object", "CIRCLE 40 2 101 Embedded 40 3"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(readFrom(row.tags, schema::circle::table).radius, 2) << row.what;
    }
    for (const char* tags : {"CIRCLE 102 {ACAD_X 40 3 102 }", "CIRCLE 1001 ACAD 40 3"})
    {
        EXPECT_EQ(readFrom(tags, schema::circle::table).radius, 0) << tags;
    }
}

TEST(EntityTags, aPointIsThereIfItsXIs)
{
    const auto solid = readFrom("SOLID 10 1 20 2 30 3 11 4 21 5 22 9 13 7", schema::solid::table);
    EXPECT_EQ(solid.first, AcGePoint3d(1, 2, 3));
    EXPECT_EQ(solid.second, AcGePoint3d(4, 5, 0));
    EXPECT_EQ(solid.third, AcGePoint3d(0, 9, 0));
    EXPECT_EQ(solid.fourth.value(), AcGePoint3d(7, 0, 0));
    EXPECT_FALSE(readFrom("SOLID 10 1 23 2", schema::solid::table).fourth);
}

TEST(EntityTags, aVectorTakesEveryTagOfItsCode)
{
    const auto spline = readFrom("SPLINE 71 3 40 0 40 0.5 40 1 10 1 20 2 30 3 10 4 10 5 30 6 21 9",
                                 schema::spline::table);
    EXPECT_EQ(spline.knots, (std::vector<double>{0, 0.5, 1}));
    ASSERT_EQ(spline.poles.size(), 3U);
    EXPECT_EQ(spline.poles[0], AcGePoint3d(1, 2, 3));
    EXPECT_EQ(spline.poles[1], AcGePoint3d(4, 0, 0));
    EXPECT_EQ(spline.poles[2], AcGePoint3d(5, 0, 6));
    EXPECT_TRUE(spline.fitPoints.empty()) << "an Y without X";
}

TEST(EntityTags, aPartBeginsAtItsFirstCode)
{
    const OneEntity polyline("LWPOLYLINE 40 9 43 5 10 1 20 2 42 0.5 10 3 40 7 20 4 41 8 38 6");
    const auto vertices = polyline.entity.readAll(schema::lightpolyline::vertex);
    ASSERT_EQ(vertices.size(), 2U);
    EXPECT_EQ(vertices[0].point.y, 2);
    EXPECT_EQ(vertices[0].bulge, 0.5);
    EXPECT_FALSE(vertices[0].startWidth);
    EXPECT_EQ(vertices[1].point.y, 4);
    EXPECT_EQ(vertices[1].bulge, 0);
    EXPECT_EQ(vertices[1].startWidth, 7);
    EXPECT_EQ(vertices[1].endWidth, 8);
    EXPECT_TRUE(OneEntity("LWPOLYLINE 20 1").entity.readAll(schema::lightpolyline::vertex).empty());
}

TEST(EntityTags, aDamagedValueCountsOnlyIfItIsAskedFor)
{
    const OneEntity damaged("CIRCLE 10 1 40 wide 48 broad");
    EXPECT_THROW(damaged.entity.read(schema::circle::table), host::dxf::Error);
    EXPECT_EQ(damaged.entity.read(schema::circle::table, std::array{Code(10)}).centre.x, 1);
    EXPECT_EQ(damaged.entity.read(schema::point::table).position.x, 1);
}

TEST(EntityTags, aTextKeepsItsBlanksOrLosesThem)
{
    const OneEntity block("INSERT 2 _A_b_");
    EXPECT_EQ(block.entity.read(schema::insert::table).block, " A b ");
    EXPECT_EQ(block.entity.text(schema::name), "A b");
    EXPECT_EQ(block.entity.text(schema::entity::layer), "");
    EXPECT_TRUE(block.entity.has(schema::name));
    EXPECT_FALSE(block.entity.has(schema::entity::layer));
}

TEST(EntityTags, anIntegerThatIsTooLargeIsTheNearest)
{
    const struct
    {
        const char* value;
        int read;
    } rows[] = {
        {"-7", -7},
        {"2147483648", 2147483647},
        {"-2147483648", -2147483647},  // has an absolute value
        {"9000000000000000000", 2147483647},
    };
    for (const auto& row : rows)
    {
        const std::string tags = std::string("MLINE 71 ") + row.value;
        EXPECT_EQ(readFrom(tags, schema::multiline::table).flags, row.read) << row.value;
        const OneEntity element(std::string("MLINE 74 ") + row.value);
        TagCursor cursor(element.entity);
        EXPECT_TRUE(cursor.seek(schema::multiline::element));
        EXPECT_EQ(cursor.read(schema::multiline::element).parameters, row.read) << row.value;
    }
}

TEST(TagCursor, readsASequenceInItsOrder)
{
    const OneEntity multiline("MLINE 13 9 11 1 21 2 31 3 13 4 23 5 12 6 74 2 41 0.5 41 0.7 11 8");
    TagCursor cursor(multiline.entity);
    ASSERT_TRUE(cursor.seek(schema::multiline::vertex));
    const auto vertex = cursor.read(schema::multiline::vertex);
    EXPECT_EQ(vertex.point, AcGePoint3d(1, 2, 3));
    EXPECT_EQ(vertex.direction, AcGeVector3d()) << "it does not stand at its place";
    EXPECT_EQ(vertex.miter.value(), AcGeVector3d(4, 5, 0));
    ASSERT_TRUE(cursor.seek(schema::multiline::element, schema::multiline::vertex));
    const auto element = cursor.read(schema::multiline::element);
    EXPECT_EQ(element.parameters, 2);
    EXPECT_EQ(element.distance, 0.5) << "the first of the parameters";
    EXPECT_FALSE(cursor.seek(schema::multiline::element, schema::multiline::vertex));
    ASSERT_TRUE(cursor.seek(schema::multiline::vertex));
    EXPECT_FALSE(cursor.read(schema::multiline::vertex).miter);
    EXPECT_FALSE(cursor.seek(schema::multiline::vertex));
    EXPECT_TRUE(cursor.atEnd());
    EXPECT_FALSE(cursor.at(schema::multiline::vertex));
}
