// System variables: values of the drawing and of the editor, by name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/database/drawingstate.h"

namespace host
{
// Tells how a variable's value is typed and shown.
enum class VariableType
{
    integer,  // 16 bits
    real,
    positive,  // a real above 0
    angle,     // [rad], shown in degrees
    point,
    text
};

// The results of setting a variable; the numbers are those that the variable ERRNO takes.
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

// The range of an integer variable, both ends included.
struct Range
{
    int least;
    int most;
};

struct VariableInfo
{
    std::wstring name;  // in capital letters
    VariableType type;
    bool readOnly;
    Range range;
};

// Tells whether a variable of that name exists, in any letter case. No variable exists without a
// document.
bool isVariable(std::wstring_view name);
// Describes a variable. Returns no value when it does not exist.
std::optional<VariableInfo> variableInfo(std::wstring_view name);
// Returns the value of a variable, which must exist.
VariableValue variableValue(std::wstring_view name);
// Sets a variable. Returns VariableError::none, or the reason why the variable is unchanged.
VariableError setVariable(std::wstring_view name, const VariableValue& value);

// Returns the value as SETVAR shows it: a point as x,y,z, an angle in degrees. The variable must
// exist.
std::wstring variableText(std::wstring_view name);
}  // namespace host
