#include "host/editor/sysvars.h"

#include <cmath>

#include "host/database/drawing.h"
#include "host/documents/documentmanager.h"
#include "host/text/numbers.h"
#include "host/editor/sysvartable.h"
#include "host/text/foldcase.h"

namespace host
{
namespace
{
const VariableRow* findRow(std::wstring_view name)
{
    for (const VariableRow& row : variableRows())
    {
        if (equalNoCase(row.name, name))
        {
            return &row;
        }
    }
    return nullptr;
}

const HeaderRow* findHeaderRow(std::wstring_view name)
{
    for (const HeaderRow& row : headerRows())
    {
        if (equalNoCase(row.name, name))
        {
            return &row;
        }
    }
    return nullptr;
}

VariableContext context()
{
    Document& document = *documents().document();
    return {document, Editor::current(), stateOf(*document.database())};
}

// Returns the value kept in the drawing under that name; null when the drawing keeps no such value.
const VariableValue* keptValue(std::wstring_view name)
{
    const auto& kept = context().state.variables;
    const auto found = kept.find(upperCase(name));
    return found == kept.end() ? nullptr : &found->second;
}

VariableType typeOf(const VariableValue& value)
{
    static const VariableType types[] = {VariableType::integer, VariableType::real,
                                         VariableType::point, VariableType::text};
    return types[value.index()];
}

std::size_t alternativeOf(VariableType type)
{
    switch (type)
    {
        case VariableType::integer:
            return 0;
        case VariableType::point:
            return 2;
        case VariableType::text:
            return 3;
        default:
            return 1;
    }
}

bool isFinite(const VariableValue& value)
{
    if (const auto* point = std::get_if<AcGePoint3d>(&value))
    {
        return std::isfinite(point->x) && std::isfinite(point->y) && std::isfinite(point->z);
    }
    const auto* number = std::get_if<double>(&value);
    return number == nullptr || std::isfinite(*number);
}

bool inRange(const VariableInfo& info, const VariableValue& value)
{
    if (const auto* whole = std::get_if<int>(&value))
    {
        return *whole >= info.range.least && *whole <= info.range.most;
    }
    const bool positive = info.type != VariableType::positive || std::get<double>(value) > 0;
    return positive && isFinite(value);
}
}  // namespace

bool isVariable(std::wstring_view name)
{
    return documents().document() != nullptr &&
           (findRow(name) || findHeaderRow(name) || keptValue(name));
}

std::optional<VariableInfo> variableInfo(std::wstring_view name)
{
    if (!isVariable(name))
    {
        return std::nullopt;
    }
    if (const VariableRow* row = findRow(name))
    {
        return VariableInfo{row->name, row->type, row->set == nullptr, row->range};
    }
    if (const HeaderRow* row = findHeaderRow(name))
    {
        return VariableInfo{row->name, row->type, false, row->range};
    }
    return VariableInfo{upperCase(name), typeOf(*keptValue(name)), true, anyShort};
}

VariableValue variableValue(std::wstring_view name)
{
    if (const VariableRow* row = findRow(name))
    {
        return row->get(context());
    }
    const VariableValue* kept = keptValue(name);
    const HeaderRow* row = findHeaderRow(name);
    // A file may hold a variable with a value of the wrong type; such a variable counts as missing.
    const bool usable = kept && (!row || kept->index() == alternativeOf(row->type));
    return usable ? *kept : row ? row->initial : VariableValue();
}

VariableError setVariable(std::wstring_view name, const VariableValue& value)
{
    const std::optional<VariableInfo> info = variableInfo(name);
    if (!info)
    {
        return VariableError::unknown;
    }
    if (info->readOnly)
    {
        return VariableError::readOnly;
    }
    if (value.index() != alternativeOf(info->type))
    {
        return VariableError::wrongType;
    }
    if (!inRange(*info, value))
    {
        return VariableError::outOfRange;
    }
    if (const VariableRow* row = findRow(name))
    {
        return row->set(context(), value);
    }
    context().state.variables[info->name] = value;
    return VariableError::none;
}

std::wstring variableText(std::wstring_view name)
{
    const VariableValue value = variableValue(name);
    switch (variableInfo(name)->type)
    {
        case VariableType::integer:
            return std::to_wstring(std::get<int>(value));
        case VariableType::angle:
            return degreesText(std::get<double>(value));
        case VariableType::text:
            return std::get<std::wstring>(value);
        case VariableType::point:
        {
            const AcGePoint3d& point = std::get<AcGePoint3d>(value);
            return realText(point.x) + L"," + realText(point.y) + L"," + realText(point.z);
        }
        default:
            return realText(std::get<double>(value));
    }
}
}  // namespace host
