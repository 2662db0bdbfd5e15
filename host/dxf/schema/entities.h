// The entities that the host creates, and the group codes that they share with others.
#pragma once

#include "host/dxf/schema/structure.h"
#include "host/dxf/schema/table.h"

namespace host::dxf::schema
{
namespace entity
{
inline constexpr Code layer{8};
inline constexpr Code linetype{6};
inline constexpr Code color{62};
inline constexpr int colorByLayer = 256;
inline constexpr int colorByBlock = 0;
inline constexpr Code trueColor{420};
inline constexpr Code linetypeScale{48};
inline constexpr Code invisible{60};
inline constexpr Code lineWeight{370};
inline constexpr Code inPaperSpace{67};
inline constexpr Code normal{210};  // of the plane in which the entity lies
inline constexpr Code flags{70};

struct Entity
{
    Handle handle = 0;
    Handles reactors;
    Handle owner = 0;
    std::wstring layer;
    std::wstring linetype = L"ByLayer";
    int color = colorByLayer;
    double linetypeScale = 1;
    int invisible = 0;
    int lineWeight = -1;
};

// R12 has no record for the linetype ByLayer, so R12 files leave it out. A space that the file does
// not name as an object cannot be an owner, so its entities have no owner tag.
inline constexpr auto rows =
    rowsOf(row(handle, &Entity::handle, When::unlessUsual),
           listRow("{ACAD_REACTORS", owner, &Entity::reactors),
           row(owner, &Entity::owner, When::unlessUsual, Since::r2000), subclassRow("AcDbEntity"),
           row(layer, &Entity::layer), row(linetype, &Entity::linetype, When::unlessUsualInR12),
           row(color, &Entity::color, When::unlessUsual),
           row(linetypeScale, &Entity::linetypeScale, When::unlessUsual, Since::r13),
           row(invisible, &Entity::invisible, When::unlessUsual, Since::r13),
           row(lineWeight, &Entity::lineWeight, When::unlessUsual, Since::r2000));
}  // namespace entity

namespace block
{
inline constexpr std::string_view type = "BLOCK";
inline constexpr Code base{10};
}  // namespace block
inline constexpr std::string_view endOfBlock = "ENDBLK";

namespace line
{
inline constexpr Code start{10};
inline constexpr Code end{11};

struct Line : entity::Entity
{
    AcGePoint3d start;
    AcGePoint3d end;
    AcGeVector3d normal{0, 0, 1};
};

inline constexpr auto table =
    tableOf<Line>("LINE", entity::rows, subclassRow("AcDbLine"), row(start, &Line::start),
                  row(end, &Line::end), row(entity::normal, &Line::normal, When::unlessUsual));
}  // namespace line

namespace text
{
inline constexpr Code position{10};
inline constexpr Code height{40};
inline constexpr Code contents{1};
inline constexpr Code rotation{50};
inline constexpr Code widthFactor{41};
inline constexpr Code oblique{51};
inline constexpr Code style{7};
inline constexpr Code generation{71};
inline constexpr Code horizontalMode{72};
inline constexpr Code verticalMode{73};
inline constexpr Code alignment{11};

struct Text : entity::Entity
{
    AcGePoint3d position;
    double height = 0;
    std::wstring contents;
    double rotation = 0;  // degrees
    double widthFactor = 1;
    double oblique = 0;  // degrees
    std::wstring style;  // empty: the drawing's first style
    int horizontalMode = 0;
    std::optional<AcGePoint3d> alignment;  // absent if both modes are 0
    AcGeVector3d normal{0, 0, 1};
    int verticalMode = 0;
};

// Both halves of the record have the same subclass name.
inline constexpr auto table = tableOf<Text>(
    "TEXT", entity::rows, subclassRow("AcDbText"), row(position, &Text::position),
    row(height, &Text::height), row(contents, &Text::contents),
    row(rotation, &Text::rotation, When::unlessUsual),
    row(widthFactor, &Text::widthFactor, When::unlessUsual),
    row(oblique, &Text::oblique, When::unlessUsual), row(style, &Text::style, When::unlessUsual),
    row(horizontalMode, &Text::horizontalMode, When::unlessUsual),
    row(alignment, &Text::alignment, When::unlessUsual),
    row(entity::normal, &Text::normal, When::unlessUsual), subclassRow("AcDbText"),
    row(verticalMode, &Text::verticalMode, When::unlessUsual));
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

inline constexpr Code verticesFollow{66};
inline constexpr Code elevation{10};  // the Z of this point
inline constexpr Code startWidth{40};
inline constexpr Code endWidth{41};
inline constexpr Code meshRows{71};
inline constexpr Code smoothRows{73};

struct Polyline : entity::Entity
{
    int verticesFollow = 1;
    AcGePoint3d elevation;
    int flags = 0;
    double startWidth = 0;
    double endWidth = 0;
    AcGeVector3d normal{0, 0, 1};
};

inline constexpr auto table = tableOf<Polyline>(
    "POLYLINE", entity::rows, subclassRow("AcDb2dPolyline"),
    row(verticesFollow, &Polyline::verticesFollow), row(elevation, &Polyline::elevation),
    row(entity::flags, &Polyline::flags), row(startWidth, &Polyline::startWidth, When::unlessUsual),
    row(endWidth, &Polyline::endWidth, When::unlessUsual),
    row(entity::normal, &Polyline::normal, When::unlessUsual));
}  // namespace polyline

namespace vertex
{
enum Flag
{
    splineFrameFlag = 16,
    meshFlag = 64,
    faceFlag = 128
};

inline constexpr Code position{10};
inline constexpr Code startWidth{40};
inline constexpr Code endWidth{41};
inline constexpr Code bulge{42};
inline constexpr Code corners[] = {Code(71), Code(72), Code(73), Code(74)};  // of a face

struct Vertex : entity::Entity
{
    AcGePoint3d position;
    int flags = 0;
};

inline constexpr auto table =
    tableOf<Vertex>("VERTEX", entity::rows, subclassRow("AcDbVertex"), subclassRow("AcDb2dVertex"),
                    row(position, &Vertex::position), row(entity::flags, &Vertex::flags));
}  // namespace vertex

namespace sequenceend
{
struct SequenceEnd
{
    Handle handle = 0;
    Handle owner = 0;
    std::wstring layer;
};

inline constexpr auto table =
    tableOf<SequenceEnd>("SEQEND", row(handle, &SequenceEnd::handle, When::unlessUsual),
                         row(owner, &SequenceEnd::owner, When::unlessUsual, Since::r2000),
                         subclassRow("AcDbEntity"), row(entity::layer, &SequenceEnd::layer));
}  // namespace sequenceend
}  // namespace host::dxf::schema
