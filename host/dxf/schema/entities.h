// The entities that the host creates, and the group codes that they share with others.
#pragma once

#include "host/dxf/schema/structure.h"
#include "host/dxf/schema/table.h"

// A table has a row a line, which clang-format would pack.
// clang-format off
namespace host::dxf::schema
{
namespace entity
{
inline constexpr Code layer{8};
inline constexpr Code linetype{6};
inline constexpr Code color{62};
inline constexpr int colorByLayer = 256;
inline constexpr int colorByBlock = 0;
inline constexpr Code invisible{60};
inline constexpr Code normal{210};  // of the plane in which the entity lies
inline constexpr Code flags{70};

// Whether and how an entity is seen, besides its layer.
struct Appearance
{
    int inPaperSpace = 0;  // counts only outside of blocks
    int color = colorByLayer;
    int invisible = 0;
    std::optional<int> trueColor;  // 0xRRGGBB; goes before `color`
};

inline constexpr auto inPaperSpaceRow = row(Code(67), &Appearance::inPaperSpace, When::unlessUsual);
inline constexpr auto colorRow = row(color, &Appearance::color, When::unlessUsual);
inline constexpr auto invisibleRow =
    row(invisible, &Appearance::invisible, When::unlessUsual, Since::r13);
inline constexpr auto trueColorRow =
    row(Code(420), &Appearance::trueColor, When::unlessUsual, Since::r2004);

struct Entity : Appearance
{
    Handle handle = 0;
    Handles reactors;
    Handle owner = 0;
    std::wstring layer;
    std::wstring linetype = L"ByLayer";
    double linetypeScale = 1;
    int lineWeight = -1;
};

// R12 has no record for the linetype ByLayer, so R12 files leave it out. A space that the file does
// not name as an object cannot be an owner, so its entities have no owner tag.
inline constexpr auto rows = rowsOf(
    row(handle, &Entity::handle, When::unlessUsual),
    listRow("{ACAD_REACTORS", owner, &Entity::reactors),
    row(owner, &Entity::owner, When::unlessUsual, Since::r2000),
    subclassRow("AcDbEntity"),
    inPaperSpaceRow,
    row(layer, &Entity::layer),
    row(linetype, &Entity::linetype, When::unlessUsualInR12),
    colorRow,
    row(Code(48), &Entity::linetypeScale, When::unlessUsual, Since::r13),
    invisibleRow,
    row(Code(370), &Entity::lineWeight, When::unlessUsual, Since::r2000),
    trueColorRow);

// What a plot needs of every entity.
struct Look : Appearance
{
    std::string_view layer;
};

inline constexpr auto look = partOf<Look>(
    inPaperSpaceRow,
    row(layer, &Look::layer),
    colorRow,
    invisibleRow,
    trueColorRow);
}  // namespace entity

namespace block
{
struct Block
{
    std::string_view name;
    AcGePoint3d base;
};

inline constexpr auto table = tableOf<Block>("BLOCK",
    subclassRow("AcDbBlockBegin"),
    row(name, &Block::name),
    row(Code(10), &Block::base));
}  // namespace block
inline constexpr std::string_view endOfBlock = "ENDBLK";

// A viewport of paper space; those of model space are records of a table.
inline constexpr std::string_view paperViewport = "VIEWPORT";

namespace line
{
inline constexpr Code start{10};
inline constexpr Code end{11};

struct Ends
{
    AcGePoint3d start;
    AcGePoint3d end;
};

inline constexpr auto ends = partOf<Ends>(row(start, &Ends::start), row(end, &Ends::end));

struct Line : entity::Entity, Ends
{
    AcGeVector3d normal{0, 0, 1};
};

inline constexpr auto table = tableOf<Line>("LINE",
    entity::rows,
    subclassRow("AcDbLine"),
    ends.rows,
    row(entity::normal, &Line::normal, When::unlessUsual));
}  // namespace line

namespace text
{
enum HorizontalMode
{
    leftMode,
    centreMode,
    rightMode,
    alignedMode,
    middleMode,
    fitMode
};

enum VerticalMode
{
    baselineMode,
    bottomMode,
    middleVertically,
    topMode
};

enum GenerationFlag
{
    backwardsFlag = 2,
    upsideDownFlag = 4
};

// What texts and attributes share.
struct Words
{
    AcGePoint3d position;
    double height = 0;
    std::wstring contents;
    double rotation = 0;  // degrees
    double widthFactor = 1;
    double oblique = 0;  // degrees
    int generation = 0;
    int horizontalMode = leftMode;
    std::optional<AcGePoint3d> alignment;  // absent if both modes are 0
    AcGeVector3d normal{0, 0, 1};
    int verticalMode = baselineMode;  // has another code in attributes
};

inline constexpr Code contents{1};

inline constexpr auto lettering = rowsOf(
    row(Code(10), &Words::position),
    row(Code(40), &Words::height),
    row(contents, &Words::contents),
    row(Code(50), &Words::rotation, When::unlessUsual),
    row(Code(41), &Words::widthFactor, When::unlessUsual),
    row(Code(51), &Words::oblique, When::unlessUsual));

// The style stands between the two.
inline constexpr auto placement = rowsOf(
    row(Code(71), &Words::generation, When::unlessUsual),
    row(Code(72), &Words::horizontalMode, When::unlessUsual),
    row(Code(11), &Words::alignment, When::unlessUsual),
    row(entity::normal, &Words::normal, When::unlessUsual));
inline constexpr auto verticalModeRow =
    row(Code(73), &Words::verticalMode, When::unlessUsual);

// What a plot needs of a text.
inline constexpr auto words = partOf<Words>(
    lettering,
    placement,
    verticalModeRow);

struct Text : entity::Entity, Words
{
    std::wstring style;  // empty: the drawing's first style
};

// Both halves of the record have the same subclass name.
inline constexpr auto table = tableOf<Text>("TEXT",
    entity::rows,
    subclassRow("AcDbText"),
    lettering,
    row(Code(7), &Text::style, When::unlessUsual),
    placement,
    subclassRow("AcDbText"),
    verticalModeRow);
}  // namespace text

namespace polyline
{
enum Flag
{
    closedFlag = 1,
    spatialFlag = 8,
    meshFlag = 16,
    closedAcrossFlag = 32,
    facesFlag = 64,
    linetypeGenerationFlag = 128
};

struct Shape
{
    AcGePoint3d elevation;  // only its Z counts
    int flags = 0;
    double startWidth = 0;
    double endWidth = 0;
    int meshRows = 0;
    int smoothRows = 0;  // of a mesh that is made smooth
    AcGeVector3d normal{0, 0, 1};
};

inline constexpr auto shape = partOf<Shape>(
    row(Code(10), &Shape::elevation),
    row(entity::flags, &Shape::flags),
    row(Code(40), &Shape::startWidth, When::unlessUsual),
    row(Code(41), &Shape::endWidth, When::unlessUsual),
    row(Code(71), &Shape::meshRows, When::unlessUsual),
    row(Code(73), &Shape::smoothRows, When::unlessUsual),
    row(entity::normal, &Shape::normal, When::unlessUsual));

struct Polyline : entity::Entity, Shape
{
    int verticesFollow = 1;
};

inline constexpr auto table = tableOf<Polyline>("POLYLINE",
    entity::rows,
    subclassRow("AcDb2dPolyline"),
    row(Code(66), &Polyline::verticesFollow),
    shape.rows);
}  // namespace polyline

namespace vertex
{
enum Flag
{
    splineFrameFlag = 16,
    meshFlag = 64,
    faceFlag = 128
};

struct Shape
{
    AcGePoint3d position;
    std::optional<double> startWidth;  // absent: the polyline's width
    std::optional<double> endWidth;
    double bulge = 0;
    int flags = 0;
    // Of a face: numbers of vertices from 1, negative if the edge that begins there is hidden, 0 if
    // the face has fewer corners.
    int corner1 = 0;
    int corner2 = 0;
    int corner3 = 0;
    int corner4 = 0;
};

inline constexpr auto shape = partOf<Shape>(
    row(Code(10), &Shape::position),
    row(Code(40), &Shape::startWidth),
    row(Code(41), &Shape::endWidth),
    row(Code(42), &Shape::bulge, When::unlessUsual),
    row(entity::flags, &Shape::flags),
    row(Code(71), &Shape::corner1, When::unlessUsual),
    row(Code(72), &Shape::corner2, When::unlessUsual),
    row(Code(73), &Shape::corner3, When::unlessUsual),
    row(Code(74), &Shape::corner4, When::unlessUsual));

struct Vertex : entity::Entity, Shape
{
};

inline constexpr auto table = tableOf<Vertex>("VERTEX",
    entity::rows,
    subclassRow("AcDbVertex"),
    subclassRow("AcDb2dVertex"),
    shape.rows);
}  // namespace vertex

namespace sequenceend
{
struct SequenceEnd
{
    Handle handle = 0;
    Handle owner = 0;
    std::wstring layer;
};

inline constexpr auto table = tableOf<SequenceEnd>("SEQEND",
    row(handle, &SequenceEnd::handle, When::unlessUsual),
    row(owner, &SequenceEnd::owner, When::unlessUsual, Since::r2000),
    subclassRow("AcDbEntity"),
    row(entity::layer, &SequenceEnd::layer));
}  // namespace sequenceend
}  // namespace host::dxf::schema
// clang-format on
