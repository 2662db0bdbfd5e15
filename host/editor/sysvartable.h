// The system variables that are more than a value kept in the drawing.
#pragma once

#include <climits>
#include <span>

#include "host/documents/document.h"
#include "host/editor/editor.h"
#include "host/editor/sysvars.h"

namespace host
{
// Where a variable looks. The editor is null when nobody sits at a command line.
struct VariableContext
{
    Document& document;
    Editor* editor;
    DrawingState& state;
};

const Range anyShort{SHRT_MIN, SHRT_MAX};

struct VariableRow
{
    const wchar_t* name;
    VariableType type;
    Range range;
    VariableValue (*get)(const VariableContext&);
    // Null for a read-only variable. The value has the right type and range.
    VariableError (*set)(const VariableContext&, const VariableValue&);
};

// Kept in the drawing under its own name, or not there yet: then it has its initial value.
struct HeaderRow
{
    const wchar_t* name;
    VariableType type;
    Range range;
    VariableValue initial;
};

std::span<const VariableRow> variableRows();
std::span<const HeaderRow> headerRows();
}  // namespace host
