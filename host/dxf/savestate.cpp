#include "host/dxf/savestate.h"

#include <cmath>
#include <map>

#include "host/basics/angle.h"
#include "host/database/drawing.h"
#include "host/dxf/headervariables.h"
#include "host/dxf/recordedits.h"
#include "host/dxf/recordreader.h"
#include "host/dxf/schema/tablerecords.h"

namespace host::dxf
{
namespace
{
bool same(const Ucs& a, const Ucs& b)
{
    bool equal = a.name == b.name;
    for (int row = 0; row < 4; ++row)
    {
        for (int column = 0; column < 4; ++column)
        {
            equal = equal && a.toWorld->entry[row][column] == b.toWorld->entry[row][column];
        }
    }
    return equal;
}

bool same(const VariableValue& a, const VariableValue& b)
{
    const auto equals = [&b](const auto& value)
    {
        const auto* other = std::get_if<std::decay_t<decltype(value)>>(&b);
        return other != nullptr && dxf::same(value, *other);
    };
    return std::visit(equals, a);
}

schema::UcsVariables variablesOf(const Ucs& ucs)
{
    schema::UcsVariables variables;
    variables.name = ucs.name;
    AcGeVector3d z;
    ucs.toWorld->getCoordSystem(variables.origin, variables.x, variables.y, z);
    return variables;
}

// Returns the viewport of the state. Takes from `record` what the state does not hold.
schema::viewport::Viewport viewportOf(const DrawingState& state,
                                      const schema::viewport::Viewport& record)
{
    schema::viewport::Viewport viewport = record;
    const View& view = state.view;
    viewport.centre = {view.centreX, view.centreY};
    viewport.height = view.height;
    viewport.aspect = view.aspect;
    viewport.direction = view.direction;
    viewport.target = view.target;
    viewport.twist = toDegrees(view.twist);
    if (viewport.mode)
    {
        viewport.mode = (*record.mode & ~schema::viewport::ucsFollowMode) |
                        (state.ucsFollow ? schema::viewport::ucsFollowMode : 0);
    }
    if (viewport.ucsIcon)
    {
        viewport.ucsIcon = state.ucsIcon;
    }
    AcGeVector3d z;
    state.modelUcs.toWorld->getCoordSystem(viewport.ucsOrigin, viewport.ucsX, viewport.ucsY, z);
    return viewport;
}

void saveViewport(Edits& edits, const FileSource& source, const DrawingState& state)
{
    if (source.viewport == nullptr)
    {
        return;
    }
    const FileForm form{source.file.release(), source.codePage};
    const auto& table = schema::viewport::table;
    const auto record = readRecord(table, TagSource{source.file, source.codePage}, *source.viewport,
                                   schema::viewport::view);
    saveChanges(edits, *source.viewport,
                RecordNumbers(table, viewportOf(source.state, record), form),
                RecordNumbers(table, viewportOf(state, record), form));
}

schema::CurrentVariables variablesOf(const CurrentProperties& current)
{
    schema::CurrentVariables variables;
    variables.layer = recordName(AcDbObjectId(current.layer));
    variables.textStyle = recordName(AcDbObjectId(current.textStyle));
    variables.linetype = recordName(AcDbObjectId(current.linetype));
    variables.color = current.color;
    variables.lineWeight = current.lineWeight;
    variables.linetypeScale = current.linetypeScale;
    return variables;
}

// Returns the group code that the file uses for the variable if its value has the same type,
// otherwise the usual code.
Code codeOf(const FileSource& source, const std::string& name, const VariableValue& value,
            const VariableValue* before)
{
    const Code usual = schema::usualCodes[value.index()];
    if (before == nullptr || before->index() != value.index() || usual == schema::pointVariable)
    {
        return usual;
    }
    Code code = usual;
    for (const Tag& tag : source.file.tags(*source.file.header(name)))
    {
        code = tag.code;
    }
    return code;
}

void saveVariables(Edits& edits, const FileSource& source, const DrawingState& state)
{
    for (const auto& [wideName, value] : state.variables)
    {
        const auto found = source.state.variables.find(wideName);
        const auto* before = found != source.state.variables.end() ? &found->second : nullptr;
        if (before != nullptr && same(*before, value))
        {
            continue;
        }
        const std::string name = "$" + std::string(wideName.begin(), wideName.end());
        const Code code = codeOf(source, name, value, before);
        const auto put = [&, &value = value](TagWriter& writer) {
            std::visit([&](const auto& typed) { putValue(writer, code, typed, source.codePage); },
                       value);
        };
        edits.setHeader(name, put);
    }
}

// Saves the extents if the file has the variables. Never shrinks them, because the file's statement
// about its own entities is trusted.
void saveExtents(const HeaderEdits& header, const DatabaseCore& core)
{
    FileSource& source = sourceOf(core);
    const WorldExtents made = madeExtents(core);
    if (!states(source.file, schema::extentsVariables) || made.empty())
    {
        return;
    }
    WorldExtents now = source.statedExtents();
    now.add(made);
    header.setChanged(
        schema::extentsVariables,
        readVariables<schema::ExtentsVariables>(schema::extentsVariables, source.state.variables),
        schema::ExtentsVariables{now.low, now.high});
}
}  // namespace

void saveState(Edits& edits, const DatabaseCore& core)
{
    const FileSource& source = sourceOf(core);
    const DrawingState& state = core.state();
    const HeaderEdits header{edits, source.codePage};
    saveViewport(edits, source, state);
    header.setChanged(schema::currentVariables, variablesOf(source.current),
                      variablesOf(core.current()));
    saveVariables(edits, source, state);
    saveExtents(header, core);
    if (!same(source.state.modelUcs, state.modelUcs))
    {
        header.setAll(schema::ucsVariables, variablesOf(state.modelUcs));
    }
    if (!same(source.state.paperUcs, state.paperUcs))
    {
        header.setAll(schema::ucsVariables, variablesOf(state.paperUcs), "P");
    }
    header.setChanged(schema::spaceVariables,
                      schema::SpaceVariables{source.state.paperSpace ? 0 : 1},
                      schema::SpaceVariables{state.paperSpace ? 0 : 1});
}
}  // namespace host::dxf
