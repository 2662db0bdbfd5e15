// The blocks, attributes and paragraphs that the host draws but never creates. The tables of
// entities have the rows that a plot needs beside those of entity::look.
#pragma once

#include "host/dxf/schema/entities.h"

// A table has a row a line, which clang-format would pack.
// clang-format off
namespace host::dxf::schema
{
namespace insert
{
struct Insert
{
    std::string_view block;
    AcGePoint3d position;
    double scaleX = 1;
    double scaleY = 1;
    double scaleZ = 1;
    double rotation = 0;  // degrees
    int columns = 1;
    int rows = 1;
    double columnSpacing = 0;
    double rowSpacing = 0;
    AcGeVector3d normal{0, 0, 1};
};

inline constexpr auto table = tableOf<Insert>("INSERT",
    subclassRow("AcDbBlockReference"),
    row(name, &Insert::block),
    row(Code(10), &Insert::position),
    row(Code(41), &Insert::scaleX, When::unlessUsual),
    row(Code(42), &Insert::scaleY, When::unlessUsual),
    row(Code(43), &Insert::scaleZ, When::unlessUsual),
    row(Code(50), &Insert::rotation, When::unlessUsual),
    row(Code(70), &Insert::columns, When::unlessUsual),
    row(Code(71), &Insert::rows, When::unlessUsual),
    row(Code(44), &Insert::columnSpacing, When::unlessUsual),
    row(Code(45), &Insert::rowSpacing, When::unlessUsual),
    row(entity::normal, &Insert::normal, When::unlessUsual));
}  // namespace insert

namespace dimension
{
struct Dimension
{
    std::string_view block;  // shows how the dimension looks
};

// Each kind of dimension has a type that ends with the type of this table: "ARC_DIMENSION".
inline constexpr auto table = tableOf<Dimension>("DIMENSION",
    subclassRow("AcDbDimension"),
    row(name, &Dimension::block));
}  // namespace dimension

namespace attribute
{
enum Flag
{
    invisibleFlag = 1,
    constantFlag = 2
};

struct Attribute : text::Words
{
    std::string_view tag;
    int flags = 0;
};

inline constexpr auto rows = rowsOf(
    subclassRow("AcDbText"),
    text::lettering,
    text::placement,
    subclassRow("AcDbAttribute"),
    row(name, &Attribute::tag),
    row(entity::flags, &Attribute::flags),
    row(Code(74), &Attribute::verticalMode, When::unlessUsual));
inline constexpr auto table = tableOf<Attribute>("ATTRIB", rows);
inline constexpr auto definition = tableOf<Attribute>("ATTDEF", rows);
}  // namespace attribute

// From R13 on.
namespace paragraphs
{
struct Paragraphs
{
    AcGePoint3d position;
    double height = 0;
    double width = 0;                     // 0: no limit
    int attachment = 1;                   // 1 to 9, from the upper left corner, row by row
    std::vector<std::string_view> parts;  // of a long text before its last part
    std::string_view lastPart;
    AcGeVector3d normal{0, 0, 1};
    std::optional<AcGeVector3d> direction;
    double rotation = 0;  // degrees; counts only without a direction
    double lineSpacing = 1;
};

inline constexpr auto table = tableOf<Paragraphs>("MTEXT",
    subclassRow("AcDbMText"),
    row(Code(10), &Paragraphs::position),
    row(Code(40), &Paragraphs::height),
    row(Code(41), &Paragraphs::width),
    row(Code(71), &Paragraphs::attachment),
    row(Code(3), &Paragraphs::parts),
    row(Code(1), &Paragraphs::lastPart),
    row(entity::normal, &Paragraphs::normal, When::unlessUsual),
    row(Code(11), &Paragraphs::direction),
    row(Code(50), &Paragraphs::rotation, When::unlessUsual),
    row(Code(44), &Paragraphs::lineSpacing, When::unlessUsual, Since::r2000));
}  // namespace paragraphs
}  // namespace host::dxf::schema
// clang-format on
