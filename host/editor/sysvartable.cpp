#include "host/editor/sysvartable.h"

#include "acdocman.h"
#include "host/database/drawing.h"
#include "host/editor/commands.h"
#include "host/text/numbers.h"
#include "host/editor/ucs.h"
#include "host/editor/view.h"
#include "host/text/foldcase.h"
#include "host/runtime/locale.h"
#include "host/windows/text.h"
#include "rxregsvc.h"

namespace host
{
namespace
{
using Context = const VariableContext&;
using Value = const VariableValue&;
using enum VariableType;
const VariableError done = VariableError::none;

const AcGeMatrix3d& ucsOf(Context at)
{
    return at.state.ucs().toWorld;
}

AcGePoint3d asPoint(const AcGeVector3d& vector)
{
    return AcGePoint3d() + vector;
}

CurrentProperties& properties(Context at)
{
    return currentOf(*at.document.database());
}

std::wstring nameOf(AcDbStub* record)
{
    return recordName(AcDbObjectId(record));
}

VariableValue viewCentre(Context at)
{
    const View& view = at.state.view;
    const AcGePoint3d centre(view.centreX, view.centreY, 0);
    return worldToUcs(ucsOf(at), ucsToWorld(viewFrame(view), centre));
}

std::wstring colorText(int color)
{
    return color == 256 ? L"BYLAYER" : color == 0 ? L"BYBLOCK" : std::to_wstring(color);
}

VariableError setColor(Context at, Value value)
{
    const std::wstring& text = std::get<std::wstring>(value);
    const std::optional<int> number = parseInteger(text);
    const bool byName = equalNoCase(text, L"BYLAYER") || equalNoCase(text, L"BYBLOCK");
    if (!byName && (!number || *number < 1 || *number > 255))
    {
        return VariableError::badColor;
    }
    const int named = equalNoCase(text, L"BYLAYER") ? 256 : 0;
    properties(at).color = std::uint16_t(number.value_or(named));
    return done;
}

VariableError setRecord(AcDbStub*& current, AcDbObjectId table, Value value, VariableError missing)
{
    const AcDbObjectId record = findRecord(table, std::get<std::wstring>(value));
    if (record.isNull())
    {
        return missing;
    }
    current = record.stub();
    return done;
}

VariableValue version(Context)
{
    return L"19.1s (LMS Tech)";
}

VariableValue blockEditor(Context at)
{
    return int(at.document.isBlockEditor());
}

VariableValue color(Context at)
{
    return colorText(properties(at).color);
}

VariableValue linetypeScale(Context at)
{
    return properties(at).linetypeScale;
}

VariableError setLinetypeScale(Context at, Value value)
{
    properties(at).linetypeScale = std::get<double>(value);
    return done;
}

VariableValue linetype(Context at)
{
    return nameOf(properties(at).linetype);
}

VariableError setLinetype(Context at, Value value)
{
    return setRecord(properties(at).linetype, at.document.database()->linetypeTableId(), value,
                     VariableError::badLinetype);
}

VariableValue lineWeight(Context at)
{
    return int(properties(at).lineWeight);
}

VariableError setLineWeight(Context at, Value value)
{
    properties(at).lineWeight = std::int16_t(std::get<int>(value));
    return done;
}

VariableValue layer(Context at)
{
    return nameOf(properties(at).layer);
}

VariableError setLayer(Context at, Value value)
{
    return setRecord(properties(at).layer, at.document.database()->layerTableId(), value,
                     VariableError::badLayer);
}

VariableValue textStyle(Context at)
{
    return nameOf(properties(at).textStyle);
}

VariableError setTextStyle(Context at, Value value)
{
    return setRecord(properties(at).textStyle, at.document.database()->textStyleTableId(), value,
                     VariableError::badTextStyle);
}

VariableValue commandActive(Context at)
{
    const std::size_t count = at.editor ? at.editor->running().size() : 0;
    return count == 0 ? 0 : count == 1 ? 1 : 3;  // 2 is added for a transparent command
}

VariableValue commandNames(Context at)
{
    return at.editor ? runningNames(*at.editor) : std::wstring();
}

VariableValue drawingName(Context at)
{
    const std::filesystem::path& path = at.document.path();
    return path.empty() ? L"Drawing1.dwg" : fromUtf8(path.filename().string());
}

VariableValue drawingFolder(Context at)
{
    const std::filesystem::path& path = at.document.path();
    const auto folder = path.empty() ? std::filesystem::current_path() : path.parent_path();
    return fromUtf8((folder / "").string());
}

VariableValue titled(Context at)
{
    return int(!at.document.path().empty());
}

VariableValue errorNumber(Context at)
{
    return at.editor ? at.editor->errorNumber() : 0;
}

VariableError setErrorNumber(Context at, Value value)
{
    if (at.editor)
    {
        at.editor->setErrorNumber(std::get<int>(value));
    }
    return done;
}

VariableValue lastPoint(Context at)
{
    return worldToUcs(ucsOf(at), at.document.lastPoint());
}

VariableError setLastPoint(Context at, Value value)
{
    at.document.setLastPoint(ucsToWorld(ucsOf(at), std::get<AcGePoint3d>(value)));
    return done;
}

// Returns the extents of the current space [wcs]: for model space those of its entities as they are
// now, for a layout those that its file states.
WorldExtents extents(Context at)
{
    if (!at.state.paperSpace)
    {
        return modelExtents(coreOf(*at.document.database()));
    }
    const auto corner = [&](const wchar_t* name, const AcGePoint3d& fallback)
    {
        const auto kept = at.state.variables.find(name);
        const bool known = kept != at.state.variables.end() && kept->second.index() == 2;
        return known ? std::get<AcGePoint3d>(kept->second) : fallback;
    };
    return {corner(L"PEXTMIN", WorldExtents().low), corner(L"PEXTMAX", WorldExtents().high)};
}

VariableValue extentsLow(Context at)
{
    return extents(at).low;
}

VariableValue extentsHigh(Context at)
{
    return extents(at).high;
}

VariableValue locale(Context)
{
    return acrxProductLCID() == russianLocale ? L"RUS" : L"ENU";
}

VariableValue space(Context at)
{
    return int(!at.state.paperSpace);
}

VariableError setSpace(Context at, Value value)
{
    at.state.paperSpace = std::get<int>(value) == 0;
    return done;
}

// Returns the number of the viewport: 1 is the layout itself, 2 the only viewport of model space.
VariableValue viewport(Context at)
{
    return at.state.paperSpace ? 1 : 2;
}

VariableValue ucsFollow(Context at)
{
    return at.state.ucsFollow;
}

VariableError setUcsFollow(Context at, Value value)
{
    at.state.ucsFollow = std::get<int>(value);
    return done;
}

VariableValue ucsIcon(Context at)
{
    return at.state.ucsIcon;
}

VariableError setUcsIcon(Context at, Value value)
{
    at.state.ucsIcon = std::get<int>(value);
    return done;
}

VariableValue ucsName(Context at)
{
    return at.state.ucs().name;
}

VariableValue ucsOrigin(Context at)
{
    return originOf(ucsOf(at));
}

VariableValue ucsXAxis(Context at)
{
    return asPoint(axisOf(ucsOf(at), 0));
}

VariableValue ucsYAxis(Context at)
{
    return asPoint(axisOf(ucsOf(at), 1));
}

VariableValue worldUcs(Context at)
{
    return int(isWorld(ucsOf(at)));
}

VariableValue target(Context at)
{
    return worldToUcs(ucsOf(at), at.state.view.target);
}

VariableValue viewDirection(Context at)
{
    return asPoint(worldToUcs(ucsOf(at), at.state.view.direction));
}

VariableValue viewHeight(Context at)
{
    return at.state.view.height;
}

VariableValue viewTwist(Context at)
{
    return inFullTurn(at.state.view.twist);  // a drawing may hold any angle
}

const VariableRow rows[] = {
    {L"ACADVER", text, anyShort, version, nullptr},
    {L"BLOCKEDITOR", integer, anyShort, blockEditor, nullptr},
    {L"CECOLOR", text, anyShort, color, setColor},
    {L"CELTSCALE", positive, anyShort, linetypeScale, setLinetypeScale},
    {L"CELTYPE", text, anyShort, linetype, setLinetype},
    {L"CELWEIGHT", integer, {-3, 211}, lineWeight, setLineWeight},
    {L"CLAYER", text, anyShort, layer, setLayer},
    {L"CMDACTIVE", integer, anyShort, commandActive, nullptr},
    {L"CMDNAMES", text, anyShort, commandNames, nullptr},
    {L"CVPORT", integer, anyShort, viewport, nullptr},
    {L"DWGNAME", text, anyShort, drawingName, nullptr},
    {L"DWGPREFIX", text, anyShort, drawingFolder, nullptr},
    {L"DWGTITLED", integer, anyShort, titled, nullptr},
    {L"ERRNO", integer, anyShort, errorNumber, setErrorNumber},
    {L"EXTMAX", point, anyShort, extentsHigh, nullptr},
    {L"EXTMIN", point, anyShort, extentsLow, nullptr},
    {L"LASTPOINT", point, anyShort, lastPoint, setLastPoint},
    {L"LOCALE", text, anyShort, locale, nullptr},
    {L"TARGET", point, anyShort, target, nullptr},
    {L"TEXTSTYLE", text, anyShort, textStyle, setTextStyle},
    {L"TILEMODE", integer, {0, 1}, space, setSpace},
    {L"UCSFOLLOW", integer, {0, 1}, ucsFollow, setUcsFollow},
    {L"UCSICON", integer, {0, 3}, ucsIcon, setUcsIcon},
    {L"UCSNAME", text, anyShort, ucsName, nullptr},
    {L"UCSORG", point, anyShort, ucsOrigin, nullptr},
    {L"UCSXDIR", point, anyShort, ucsXAxis, nullptr},
    {L"UCSYDIR", point, anyShort, ucsYAxis, nullptr},
    {L"VIEWCTR", point, anyShort, viewCentre, nullptr},
    {L"VIEWDIR", point, anyShort, viewDirection, nullptr},
    {L"VIEWSIZE", real, anyShort, viewHeight, nullptr},
    {L"VIEWTWIST", angle, anyShort, viewTwist, nullptr},
    {L"WORLDUCS", integer, anyShort, worldUcs, nullptr},
};

// The variables that control how numbers are shown are only kept, because the command line shows
// numbers in full.
const HeaderRow header[] = {
    // clang-format off
    {L"AUNITS", integer, {0, 4}, 0},
    {L"AUPREC", integer, {0, 8}, 0},
    {L"ELEVATION", real, anyShort, 0.0},
    {L"INSUNITS", integer, {0, 24}, 4},
    {L"LTSCALE", positive, anyShort, 1.0},
    {L"LUNITS", integer, {1, 5}, 2},
    {L"LUPREC", integer, {0, 8}, 4},
    {L"MEASUREMENT", integer, {0, 1}, 1},
    {L"ORTHOMODE", integer, {0, 1}, 0},
    {L"TEXTSIZE", positive, anyShort, 2.5},
    {L"THICKNESS", real, anyShort, 0.0},
    {L"WORLDVIEW", integer, {0, 1}, 1},
    // clang-format on
};
}  // namespace

std::span<const VariableRow> variableRows()
{
    return rows;
}
std::span<const HeaderRow> headerRows()
{
    return header;
}
}  // namespace host
