// The tables of the system variables.
#pragma once

#include <climits>
#include <span>

#include "host/documents/document.h"
#include "host/editor/editor.h"
#include "host/editor/sysvars.h"

namespace host
{
// The objects that a variable reads and writes. The editor is null when there is no command line.
struct VariableContext
{
    Document& document;
    Editor* editor;
    DrawingState& state;
};

const Range anyShort{SHRT_MIN, SHRT_MAX};

// A variable that the host computes or that is part of the state of the drawing or the editor.
struct VariableRow
{
    const wchar_t* name;
    VariableType type;
    Range range;
    VariableValue (*get)(const VariableContext&);
    // Sets a value whose type and range have been checked. Null for a read-only variable.
    VariableError (*set)(const VariableContext&, const VariableValue&);
};

// A variable that the drawing stores under the same name. A drawing that lacks the variable has its
// initial value.
struct HeaderRow
{
    const wchar_t* name;
    VariableType type;
    Range range;
    VariableValue initial;
};

// Return all rows [borrowed], which live as long as the program.
std::span<const VariableRow> variableRows();
std::span<const HeaderRow> headerRows();
}  // namespace host
