// System variables: values of the drawing and of the editor by name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/database/drawingstate.h"

namespace host
{
// How a variable's value is typed and shown.
enum class VariableType
{
    integer,  // 16 bits
    real,
    positive,  // a real above 0
    angle,     // [rad], shown in degrees
    point,
    text
};

// Numbers that the variable ERRNO tells.
enum class VariableError
{
    none = 0,
    unknown = 18,
    wrongType = 19,
    readOnly = 20,
    outOfRange = 22,
    badLayer = 25,
    badLinetype = 26,
    badColor = 27,
    badTextStyle = 28
};

// Of an integer; both ends belong to it.
struct Range
{
    int least;
    int most;
};

struct VariableInfo
{
    std::wstring name;  // in capitals
    VariableType type;
    bool readOnly;
    Range range;
};

// Letter case of names does not count. Without a document there are no variables.
bool isVariable(std::wstring_view name);
std::optional<VariableInfo> variableInfo(std::wstring_view name);
// The variable has to exist.
VariableValue variableValue(std::wstring_view name);
VariableError setVariable(std::wstring_view name, const VariableValue& value);

// As SETVAR shows it: points x,y,z, angles in degrees.
std::wstring variableText(std::wstring_view name);
}  // namespace host
