#include "host/dxf/savestate.h"

#include <cmath>
#include <map>

#include "host/database/drawing.h"

namespace host::dxf
{
namespace
{
void putPoint(int code, const AcGePoint3d& point, TagWriter& writer)
{
    writer.point(code, point.x, point.y, point.z);
}

AcGePoint3d asPoint(const AcGeVector3d& v)
{
    return AcGePoint3d(v.x, v.y, v.z);
}

bool same(const AcGeVector3d& a, const AcGeVector3d& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

bool same(const AcGePoint3d& a, const AcGePoint3d& b)
{
    return same(a.asVector(), b.asVector());
}

bool same(const Ucs& a, const Ucs& b)
{
    bool equal = a.name == b.name;
    for (int row = 0; row < 4; ++row)
    {
        for (int column = 0; column < 4; ++column)
        {
            equal = equal && a.toWorld.entry[row][column] == b.toWorld.entry[row][column];
        }
    }
    return equal;
}

bool same(const VariableValue& a, const VariableValue& b)
{
    const auto* pointA = std::get_if<AcGePoint3d>(&a);
    const auto* pointB = std::get_if<AcGePoint3d>(&b);
    if (pointA != nullptr && pointB != nullptr)
    {
        return same(*pointA, *pointB);
    }
    if (a.index() != b.index())
    {
        return false;
    }
    if (const auto* text = std::get_if<std::wstring>(&a))
    {
        return *text == std::get<std::wstring>(b);
    }
    return std::holds_alternative<int>(a) ? std::get<int>(a) == std::get<int>(b)
                                          : std::get<double>(a) == std::get<double>(b);
}

struct Axes
{
    AcGePoint3d origin;
    AcGeVector3d x, y, z;

    explicit Axes(const Ucs& ucs) { ucs.toWorld.getCoordSystem(origin, x, y, z); }
};

void saveUcs(Edits& edits, const CodePage& codePage, const std::string& prefix, const Ucs& ucs)
{
    const Axes axes(ucs);
    const auto setPoint = [&](const char* name, const AcGePoint3d& value)
    {
        edits.setHeader("$" + prefix + name,
                        [value](TagWriter& writer) { putPoint(10, value, writer); });
    };
    edits.setHeader("$" + prefix + "UCSNAME", [name = codePage.encode(ucs.name)](TagWriter& writer)
                    { writer.text(2, name); });
    setPoint("UCSORG", axes.origin);
    setPoint("UCSXDIR", asPoint(axes.x));
    setPoint("UCSYDIR", asPoint(axes.y));
}

typedef std::map<int, double> Reals;

void put(Reals& reals, int code, const AcGePoint3d& point)
{
    reals[code] = point.x;
    reals[code + 10] = point.y;
    reals[code + 20] = point.z;
}

Reals viewReals(const View& view)
{
    Reals reals = {{12, view.centreX},
                   {22, view.centreY},
                   {40, view.height},
                   {41, view.aspect},
                   {51, view.twist * 180 / M_PI}};
    put(reals, 16, asPoint(view.direction));
    put(reals, 17, view.target);
    return reals;
}

Reals ucsReals(const Ucs& ucs)
{
    const Axes axes(ucs);
    Reals reals;
    for (int i = 0; i < 3; ++i)
    {
        reals[110 + 10 * i] = axes.origin[i];
        reals[111 + 10 * i] = asPoint(axes.x)[i];
        reals[112 + 10 * i] = asPoint(axes.y)[i];
    }
    return reals;
}

// Sets those of `now` that differ from `before` in the record; what it lacks goes to its end.
void saveReals(Edits& edits, const Record& record, const Reals& before, const Reals& now)
{
    Reals changed;
    for (const auto& [code, value] : now)
    {
        if (before.at(code) != value)
        {
            changed[code] = value;
        }
    }
    std::size_t end = record.end;
    for (const Tag& tag : edits.file().tags(record))
    {
        if (tag.code == 1001)
        {
            end = tag.begin;
            break;
        }
        const auto found = changed.find(tag.code);
        if (found != changed.end())
        {
            edits.setValue(tag, realText(found->second));
            changed.erase(found);
        }
    }
    for (const auto& [code, value] : changed)
    {
        edits.insert(end,
                     [code = code, value = value](TagWriter& writer) { writer.real(code, value); });
    }
}

void saveFlags(Edits& edits, const Record& record, const DrawingState& state)
{
    for (const Tag& tag : edits.file().tags(record))
    {
        if (tag.code == 1001)
        {
            return;
        }
        if (tag.code == 71)
        {
            const auto others = edits.file().integer(tag) & ~8;
            edits.setValue(tag, std::to_string(others | (state.ucsFollow ? 8 : 0)));
        }
        else if (tag.code == 74)
        {
            edits.setValue(tag, std::to_string(state.ucsIcon));
        }
    }
}

void saveViewport(Edits& edits, const FileSource& source, const DrawingState& state)
{
    const Record* record = source.viewport;
    if (record == nullptr)
    {
        return;
    }
    saveReals(edits, *record, viewReals(source.state.view), viewReals(state.view));
    if (!same(source.state.modelUcs, state.modelUcs))
    {
        saveReals(edits, *record, ucsReals(source.state.modelUcs), ucsReals(state.modelUcs));
    }
    if (state.ucsIcon != source.state.ucsIcon || state.ucsFollow != source.state.ucsFollow)
    {
        saveFlags(edits, *record, state);
    }
}

void saveCurrent(Edits& edits, const FileSource& source, const CurrentProperties& current)
{
    const CurrentProperties& before = source.current;
    const auto setName = [&](const char* variable, int code, AcDbStub* was, AcDbStub* is)
    {
        if (was != is)
        {
            edits.setHeader(variable,
                            [code, name = source.codePage.encode(recordName(AcDbObjectId(is)))](
                                TagWriter& writer) { writer.text(code, name); });
        }
    };
    setName("$CLAYER", 8, before.layer, current.layer);
    setName("$TEXTSTYLE", 7, before.textStyle, current.textStyle);
    setName("$CELTYPE", 6, before.linetype, current.linetype);
    if (current.color != before.color)
    {
        edits.setHeader("$CECOLOR", [c = current.color](TagWriter& w) { w.integer(62, c); });
    }
    if (current.lineWeight != before.lineWeight)
    {
        edits.setHeader("$CELWEIGHT",
                        [c = current.lineWeight](TagWriter& w) { w.integer(370, c); });
    }
    if (current.linetypeScale != before.linetypeScale)
    {
        edits.setHeader("$CELTSCALE", [c = current.linetypeScale](TagWriter& w) { w.real(40, c); });
    }
}

// The group code that the file has for a value of that type, else the usual one for it.
int codeOf(const FileSource& source, const std::string& name, const VariableValue& value,
           const VariableValue* before)
{
    static const int usual[] = {70, 40, 10, 1};  // in the order of the variant's types
    int code = usual[value.index()];
    if (before == nullptr || before->index() != value.index() || code == 10)
    {
        return code;
    }
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
        const int code = codeOf(source, name, value, before);
        edits.setHeader(name,
                        [&, &value = value](TagWriter& writer)
                        {
                            if (const auto* number = std::get_if<int>(&value))
                            {
                                writer.integer(code, *number);
                            }
                            else if (const auto* real = std::get_if<double>(&value))
                            {
                                writer.real(code, *real);
                            }
                            else if (const auto* point = std::get_if<AcGePoint3d>(&value))
                            {
                                putPoint(code, *point, writer);
                            }
                            else
                            {
                                writer.text(code,
                                            source.codePage.encode(std::get<std::wstring>(value)));
                            }
                        });
    }
}

// A file without the variables is given none. Shrunk they are never: what the file says of its own
// entities is taken as it is.
void saveExtents(Edits& edits, const DatabaseCore& core)
{
    FileSource& source = sourceOf(core);
    const bool isStated = source.file.header("$EXTMIN") && source.file.header("$EXTMAX");
    const WorldExtents made = madeExtents(core);
    if (!isStated || made.empty())
    {
        return;
    }
    WorldExtents now = source.statedExtents();
    now.add(made);
    const auto set = [&](const std::wstring& name, const AcGePoint3d& corner)
    {
        const VariableValue& before = source.state.variables.at(name);
        if (!same(before, VariableValue(corner)))
        {
            edits.setHeader("$" + std::string(name.begin(), name.end()),
                            [corner](TagWriter& writer) { putPoint(10, corner, writer); });
        }
    };
    set(L"EXTMIN", now.low);
    set(L"EXTMAX", now.high);
}
}  // namespace

void saveState(Edits& edits, const DatabaseCore& core)
{
    const FileSource& source = sourceOf(core);
    const DrawingState& state = core.state;
    saveViewport(edits, source, state);
    saveCurrent(edits, source, core.current);
    saveVariables(edits, source, state);
    saveExtents(edits, core);
    if (!same(source.state.modelUcs, state.modelUcs))
    {
        saveUcs(edits, source.codePage, "", state.modelUcs);
    }
    if (!same(source.state.paperUcs, state.paperUcs))
    {
        saveUcs(edits, source.codePage, "P", state.paperUcs);
    }
    if (state.paperSpace != source.state.paperSpace)
    {
        edits.setHeader("$TILEMODE", [tiled = !state.paperSpace](TagWriter& writer)
                        { writer.integer(70, tiled ? 1 : 0); });
    }
}
}  // namespace host::dxf
