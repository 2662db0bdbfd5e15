// The variables of section HEADER.
#pragma once

#include "host/dxf/schema/structure.h"
#include "host/dxf/schema/table.h"

// A table has a row a line, which clang-format would pack.
// clang-format off
namespace host::dxf::schema
{
// The usual codes, by type of value, for a variable that the tables below do not contain.
inline constexpr Code integerVariable{70};
inline constexpr Code realVariable{40};
inline constexpr Code pointVariable{10};
inline constexpr Code textVariable{1};
inline constexpr Code usualCodes[] = {integerVariable, realVariable, pointVariable, textVariable};

// Returns which coordinate of a point variable the code holds, 0 to 2; nothing for any other code.
constexpr std::optional<int> axisOfVariable(Code code)
{
    const Code axes[] = {pointVariable, pointVariable.y(), pointVariable.z()};
    for (int axis = 0; axis < 3; ++axis)
    {
        if (code == axes[axis])
        {
            return axis;
        }
    }
    return std::nullopt;
}

// A variable needs no first release: a reader that does not know its name skips it.
template <class Variables, class Value>
struct VariableRow
{
    std::string_view name;  // without "$"
    Code code;
    Value Variables::*member;
};

template <class Variables, class Value>
consteval VariableRow<Variables, Value> variable(std::string_view name, int code,
                                                 Value Variables::*member)
{
    return fits<Value>(valueType(Code(code)))
               ? VariableRow<Variables, Value>{name, Code(code), member}
               : throw "the member cannot have the code's type";
}

// The properties of new entities.
struct CurrentVariables
{
    std::wstring layer = L"0";
    std::wstring textStyle = L"Standard";
    std::wstring linetype = L"ByLayer";
    int color = 256;
    int lineWeight = -1;
    double linetypeScale = 1;
};

inline constexpr auto currentVariables = rowsOf(
    variable("CLAYER", 8, &CurrentVariables::layer),
    variable("TEXTSTYLE", 7, &CurrentVariables::textStyle),
    variable("CELTYPE", 6, &CurrentVariables::linetype),
    variable("CECOLOR", 62, &CurrentVariables::color),
    variable("CELWEIGHT", 370, &CurrentVariables::lineWeight),
    variable("CELTSCALE", 40, &CurrentVariables::linetypeScale));

// The variables of model space. The names of those of paper space begin with "P".
struct UcsVariables
{
    std::wstring name;
    AcGePoint3d origin;
    AcGeVector3d x{1, 0, 0};
    AcGeVector3d y{0, 1, 0};
};

inline constexpr auto ucsVariables = rowsOf(
    variable("UCSNAME", 2, &UcsVariables::name),
    variable("UCSORG", 10, &UcsVariables::origin),
    variable("UCSXDIR", 10, &UcsVariables::x),
    variable("UCSYDIR", 10, &UcsVariables::y));

struct SpaceVariables
{
    int tileMode = 1;  // 0 while a layout is current
};

inline constexpr auto spaceVariables = rowsOf(variable("TILEMODE", 70, &SpaceVariables::tileMode));

struct ExtentsVariables
{
    AcGePoint3d low;
    AcGePoint3d high;
};

inline constexpr auto extentsVariables = rowsOf(
    variable("EXTMIN", 10, &ExtentsVariables::low),
    variable("EXTMAX", 10, &ExtentsVariables::high));

struct HandleVariables
{
    Handle seed = 0;
};

inline constexpr auto handleVariables = rowsOf(variable("HANDSEED", 5, &HandleVariables::seed));
}  // namespace host::dxf::schema
// clang-format on
