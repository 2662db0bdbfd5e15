#include "host/dxf/loadstate.h"

#include <algorithm>
#include <cmath>

#include "host/database/drawing.h"
#include "host/dxf/schema/header.h"

namespace host::dxf
{
namespace
{
// An integer of 64 bits stays in its digits: a variable's has 32.
VariableValue valueOf(const FileSource& source, const HeaderVariable& variable)
{
    VariableValue value = std::wstring();
    AcGePoint3d point;
    for (const Tag& tag : source.file.tags(variable))
    {
        const Code code(tag.code);
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

// Reads typed values out of the header; a variable that is missing or of another type leaves the
// default.
class Header
{
public:
    explicit Header(const DrawingState& state) : m_variables(state.variables) {}

    template <class T>
    T get(const wchar_t* name, T fallback) const
    {
        const auto found = m_variables.find(name);
        const T* value = found != m_variables.end() ? std::get_if<T>(&found->second) : nullptr;
        return value != nullptr ? *value : fallback;
    }

    Ucs ucs(const std::wstring& prefix) const
    {
        const auto origin = get((prefix + L"UCSORG").c_str(), AcGePoint3d(0, 0, 0));
        const auto x = get((prefix + L"UCSXDIR").c_str(), AcGePoint3d(1, 0, 0)).asVector();
        const auto y = get((prefix + L"UCSYDIR").c_str(), AcGePoint3d(0, 1, 0)).asVector();
        Ucs ucs;
        const AcGeVector3d z = x.crossProduct(y);
        // Directions too long for a length make no coordinate system either.
        if (z.length() > 1e-6 && std::isfinite(x.length() + y.length() + z.length()))
        {
            ucs.toWorld.setCoordSystem(origin, x.normal(), y.normal(), z.normal());
            ucs.name = get((prefix + L"UCSNAME").c_str(), std::wstring());
        }
        return ucs;
    }

private:
    const std::map<std::wstring, VariableValue>& m_variables;
};

void loadView(const FileSource& source, DrawingState& state)
{
    if (source.viewport == nullptr)
    {
        return;
    }
    View& view = state.view;
    AcGeVector3d direction = view.direction;
    for (const Tag& tag : source.file.tags(*source.viewport))
    {
        const auto real = [&] { return source.file.real(tag); };
        switch (tag.code)
        {
            case 12:
                view.centreX = real();
                break;
            case 22:
                view.centreY = real();
                break;
            case 40:
                view.height = real();
                break;
            case 41:
                view.aspect = real();
                break;
            case 16:
                direction.x = real();
                break;
            case 26:
                direction.y = real();
                break;
            case 36:
                direction.z = real();
                break;
            case 17:
                view.target.x = real();
                break;
            case 27:
                view.target.y = real();
                break;
            case 37:
                view.target.z = real();
                break;
            case 51:
                view.twist = real() * M_PI / 180;
                break;
            case 71:
                state.ucsFollow = (source.file.integer(tag) & 8) != 0;
                break;
            case 74:
                state.ucsIcon = int(source.file.integer(tag));
                break;
        }
        if (tag.code == 1001)
        {
            break;
        }
    }
    if (direction.length() > 0)
    {
        view.direction = direction;
    }
}

AcDbStub* record(const AcDbObjectId& table, const std::wstring& name, const wchar_t* fallback)
{
    const AcDbObjectId id = findRecord(table, name);
    return id.isNull() ? findRecord(table, fallback).stub() : id.stub();
}
}  // namespace

void loadState(DatabaseCore& core, const FileSource& source)
{
    DrawingState& state = core.state;
    for (const HeaderVariable& variable : source.file.headerVariables())
    {
        if (variable.name.starts_with('$'))
        {
            const std::wstring name(variable.name.begin() + 1, variable.name.end());
            state.variables[name] = valueOf(source, variable);
        }
    }
    loadView(source, state);

    const Header header(state);
    state.modelUcs = header.ucs(L"");
    state.paperUcs = header.ucs(L"P");
    state.paperSpace = header.get(L"TILEMODE", 1) == 0;

    const AcDbDatabase& database = core.database;
    CurrentProperties& current = core.current;
    current.layer = record(database.layerTableId(), header.get(L"CLAYER", std::wstring()), L"0");
    current.textStyle =
        record(database.textStyleTableId(), header.get(L"TEXTSTYLE", std::wstring()), L"Standard");
    current.linetype =
        record(database.linetypeTableId(), header.get(L"CELTYPE", std::wstring()), L"ByLayer");
    current.color = std::uint16_t(std::clamp(header.get(L"CECOLOR", 256), 0, 256));
    current.lineWeight = std::int16_t(header.get(L"CELWEIGHT", -1));
    current.linetypeScale = header.get(L"CELTSCALE", 1.0);

    // A seed below the highest handle is not to be trusted, nor one that leaves no room above it.
    const std::wstring seedText = header.get(L"HANDSEED", std::wstring());
    const std::uint64_t seed = std::wcstoull(seedText.c_str(), nullptr, 16);
    if (seed <= highestUsableHandle)
    {
        core.nextHandle = std::max(core.nextHandle, seed);
    }
}
}  // namespace host::dxf
