#include "host/dxf/loadstate.h"

#include <algorithm>
#include <cmath>

#include "host/basics/angle.h"
#include "host/database/drawing.h"
#include "host/dxf/headervariables.h"
#include "host/dxf/recordreader.h"
#include "host/dxf/schema/tablerecords.h"

namespace host::dxf
{
namespace
{
// Returns the value of a variable. A 64-bit integer stays text, because the integer of a variable
// has 32 bits.
VariableValue valueOf(const FileSource& source, const HeaderVariable& variable)
{
    VariableValue value = std::wstring();
    AcGePoint3d point;
    for (const Tag& tag : source.file.tags(variable))
    {
        const Code code = tag.code;
        const ValueType type = valueType(code);
        if (const auto axis = schema::axisOfVariable(code))
        {
            point[*axis] = source.file.real(tag);
            value = point;
        }
        else if (type == ValueType::real)
        {
            value = source.file.real(tag);
        }
        else if (isInteger(type) && type != ValueType::int64)
        {
            value = int(source.file.integer(tag));
        }
        else
        {
            value = source.codePage.decode(tag.value);
        }
    }
    return value;
}

Ucs ucsOf(const schema::UcsVariables& variables)
{
    Ucs ucs;
    const AcGeVector3d& x = variables.x;
    const AcGeVector3d& y = variables.y;
    const AcGeVector3d z = x.crossProduct(y);
    // Directions so long that their length overflows do not make a coordinate system either.
    if (z.length() > 1e-6 && std::isfinite(x.length() + y.length() + z.length()))
    {
        ucs.toWorld =
            AcGeMatrix3d().setCoordSystem(variables.origin, x.normal(), y.normal(), z.normal());
        ucs.name = variables.name;
    }
    return ucs;
}

void loadView(const FileSource& source, DrawingState& state)
{
    if (source.viewport == nullptr)
    {
        return;
    }
    const schema::viewport::Viewport read =
        readRecord(schema::viewport::table, TagSource{source.file, source.codePage},
                   *source.viewport, schema::viewport::view);
    View& view = state.view;
    view.centreX = read.centre.x;
    view.centreY = read.centre.y;
    view.height = read.height;
    view.aspect = read.aspect;
    view.target = read.target;
    view.twist = toRadians(read.twist);
    view.direction = read.direction.length() > 0 ? read.direction : view.direction;
    state.ucsFollow = (read.mode.value_or(0) & schema::viewport::ucsFollowMode) != 0;
    state.ucsIcon = read.ucsIcon.value_or(state.ucsIcon);
}

AcDbStub* record(const AcDbObjectId& table, const std::wstring& name, const wchar_t* fallback)
{
    const AcDbObjectId id = findRecord(table, name);
    return id.isNull() ? findRecord(table, fallback).stub() : id.stub();
}

void loadCurrent(DatabaseCore& core)
{
    const auto read =
        readVariables<schema::CurrentVariables>(schema::currentVariables, core.state().variables);
    const AcDbDatabase& database = core.database();
    CurrentProperties& current = core.current();
    current.layer = record(database.layerTableId(), read.layer, L"0");
    current.textStyle = record(database.textStyleTableId(), read.textStyle, L"Standard");
    current.linetype = record(database.linetypeTableId(), read.linetype, L"ByLayer");
    current.color = std::uint16_t(std::clamp(read.color, 0, 256));
    current.lineWeight = std::int16_t(read.lineWeight);
    current.linetypeScale = read.linetypeScale;
}
}  // namespace

void loadState(DatabaseCore& core, const FileSource& source)
{
    DrawingState& state = core.state();
    for (const HeaderVariable& variable : source.file.headerVariables())
    {
        if (variable.name.starts_with('$'))
        {
            const std::wstring name(variable.name.begin() + 1, variable.name.end());
            state.variables[name] = valueOf(source, variable);
        }
    }
    loadView(source, state);

    const auto readUcs = [&](const char* prefix)
    {
        return ucsOf(
            readVariables<schema::UcsVariables>(schema::ucsVariables, state.variables, prefix));
    };
    state.modelUcs = readUcs("");
    state.paperUcs = readUcs("P");
    state.paperSpace =
        readVariables<schema::SpaceVariables>(schema::spaceVariables, state.variables).tileMode ==
        0;
    loadCurrent(core);

    // A seed is ignored if it lies below the highest handle or leaves no room above it.
    const std::uint64_t seed =
        readVariables<schema::HandleVariables>(schema::handleVariables, state.variables).seed;
    if (seed <= highestUsableHandle)
    {
        core.handles().startAt(seed);
    }
}
}  // namespace host::dxf
