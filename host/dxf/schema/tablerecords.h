// The records of section TABLES.
#pragma once

#include "host/dxf/schema/structure.h"
#include "host/dxf/schema/table.h"

// A table has a row a line, which clang-format would pack.
// clang-format off
namespace host::dxf::schema
{
struct SymbolTable
{
    std::wstring name;
    Handle handle = 0;
    int count = 0;
};

inline constexpr auto symbolTable = tableOf<SymbolTable>("TABLE",
    row(name, &SymbolTable::name),
    row(handle, &SymbolTable::handle, When::always, Since::r13),
    subclassRow("AcDbSymbolTable"),
    row(Code(70), &SymbolTable::count));

inline constexpr std::string_view endOfTable = "ENDTAB";

// The attributes that all records of tables share.
struct SymbolRecord
{
    Handle handle = 0;
    Handle owner = 0;
    std::wstring name;
    int flags = 0;
};

inline constexpr auto symbolRows = rowsOf(
    row(handle, &SymbolRecord::handle, When::unlessUsual),
    row(owner, &SymbolRecord::owner, When::unlessUsual, Since::r2000),
    subclassRow("AcDbSymbolTableRecord"));
inline constexpr Code symbolFlags{70};
inline constexpr auto nameAndFlagRows = rowsOf(
    row(name, &SymbolRecord::name),
    row(symbolFlags, &SymbolRecord::flags));

namespace linetype
{
struct Linetype : SymbolRecord
{
    std::wstring description = L"Solid line";
    int alignment = 'A';
    int dashes = 0;
    double length = 0;
};

inline constexpr auto table = tableOf<Linetype>("LTYPE",
    symbolRows,
    subclassRow("AcDbLinetypeTableRecord"),
    nameAndFlagRows,
    row(Code(3), &Linetype::description),
    row(Code(72), &Linetype::alignment),
    row(Code(73), &Linetype::dashes),
    row(Code(40), &Linetype::length));
}  // namespace linetype

namespace layer
{
enum Flag
{
    frozenFlag = 1,
    lockedFlag = 4
};

inline constexpr Code color{62};  // negative while the layer is off
inline constexpr int usualColor = 7;
inline constexpr Code linetype{6};
inline constexpr Code plots{290};
inline constexpr Code trueColor{420};

struct Layer : SymbolRecord
{
    int color = usualColor;
    std::wstring linetype = L"CONTINUOUS";
    int plots = 1;
    std::optional<int> trueColor;  // 0xRRGGBB; goes before `color`
};

inline constexpr auto table = tableOf<Layer>("LAYER",
    symbolRows,
    subclassRow("AcDbLayerTableRecord"),
    nameAndFlagRows,
    row(color, &Layer::color),
    row(linetype, &Layer::linetype),
    row(plots, &Layer::plots, When::unlessUsual, Since::r2000),
    row(trueColor, &Layer::trueColor, When::unlessUsual, Since::r2004));
}  // namespace layer

namespace textstyle
{
inline constexpr Code height{40};
inline constexpr Code widthFactor{41};
inline constexpr Code oblique{50};

struct TextStyle : SymbolRecord
{
    double height = 0;
    double widthFactor = 1;
    double oblique = 0;  // degrees
    int generation = 0;
    double lastHeight = 2.5;
    std::wstring font = L"txt";
    std::wstring bigFont;
};

inline constexpr auto table = tableOf<TextStyle>("STYLE",
    symbolRows,
    subclassRow("AcDbTextStyleTableRecord"),
    nameAndFlagRows,
    row(height, &TextStyle::height),
    row(widthFactor, &TextStyle::widthFactor),
    row(oblique, &TextStyle::oblique),
    row(Code(71), &TextStyle::generation),
    row(Code(42), &TextStyle::lastHeight),
    row(Code(3), &TextStyle::font),
    row(Code(4), &TextStyle::bigFont));
}  // namespace textstyle

namespace blockrecord
{
struct BlockRecord : SymbolRecord
{
};

inline constexpr auto table = tableOf<BlockRecord>("BLOCK_RECORD",
    symbolRows,
    subclassRow("AcDbBlockTableRecord"),
    row(name, &BlockRecord::name));
}  // namespace blockrecord

namespace viewport
{
inline constexpr const wchar_t* active = L"*ACTIVE";  // in any letter case

enum Mode
{
    ucsFollowMode = 8
};

inline constexpr Code centre{12};
inline constexpr Code direction{16};
inline constexpr Code target{17};
inline constexpr Code height{40};
inline constexpr Code aspect{41};
inline constexpr Code twist{51};
inline constexpr Code mode{71};
inline constexpr Code ucsIcon{74};

// The codes that describe the view of the drawing.
inline constexpr Code view[] = {centre, direction, target, height, aspect, twist, mode, ucsIcon};

struct Viewport : SymbolRecord
{
    PlanePoint centre;  // in display coordinates
    AcGeVector3d direction{0, 0, 1};
    AcGePoint3d target;
    double height = 297;
    double aspect = 1.4;
    double twist = 0;  // degrees
    // A record that lacks the mode or the icon does not get one.
    std::optional<int> mode;
    std::optional<int> ucsIcon;
    AcGePoint3d ucsOrigin;
    AcGeVector3d ucsX{1, 0, 0};
    AcGeVector3d ucsY{0, 1, 0};
};

// A changed coordinate system is written even to R12 files: readers that do not know its codes skip
// them.
inline constexpr auto table = tableOf<Viewport>("VPORT",
    symbolRows,
    subclassRow("AcDbViewportTableRecord"),
    nameAndFlagRows,
    row(centre, &Viewport::centre),
    row(direction, &Viewport::direction),
    row(target, &Viewport::target),
    row(height, &Viewport::height),
    row(aspect, &Viewport::aspect),
    row(twist, &Viewport::twist),
    row(mode, &Viewport::mode),
    row(ucsIcon, &Viewport::ucsIcon),
    row(Code(110), &Viewport::ucsOrigin),
    row(Code(111), &Viewport::ucsX),
    row(Code(112), &Viewport::ucsY));
}  // namespace viewport
}  // namespace host::dxf::schema
// clang-format on
