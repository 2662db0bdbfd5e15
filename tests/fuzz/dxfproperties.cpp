#include "tests/fuzz/dxfproperties.h"

#include <memory>

#include "dbdict.h"
#include "dbents.h"
#include "dbgroup.h"
#include "dbsymtb.h"
#include "host/database/packing.h"
#include "host/database/drawing.h"
#include "host/dxf/filesource.h"
#include "host/dxf/load.h"
#include "host/dxf/save.h"
#include "host/dxf/atomicsave.h"
#include "host/plot/paper.h"
#include "host/plot/scene.h"

using namespace host::dxf;

namespace tests
{
namespace
{
constexpr std::size_t newEntities = 2;

std::string saved(AcDbDatabase& database)
{
    std::string bytes;
    withChanges(host::coreOf(database),
                [&bytes](const Edits& edits)
                {
                    writeTags(
                        edits.file().style(), [&](TagWriter& writer) { edits.write(writer); },
                        [&bytes](std::string_view piece) { bytes += piece; });
                });
    return bytes;
}

AcDbObjectId append(AcDbDatabase& database, AcDbEntity* entity)
{
    AcDbObjectId id;
    AcDbBlockTable* table = nullptr;
    AcDbBlockTableRecord* space = nullptr;
    database.getBlockTable(table, AcDb::kForRead);
    table->getAt(ACDB_MODEL_SPACE, space, AcDb::kForWrite);
    space->appendAcDbEntity(id, entity);
    entity->close();
    space->close();
    table->close();
    return id;
}

void addGrid(AcDbDatabase& database)
{
    const AcDbObjectId line =
        append(database, new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 2, 3)));
    const AcDbObjectId text =
        append(database, new AcDbText(AcGePoint3d(), L"12.5 \x41C", AcDbObjectId::kNull, 1));
    AcDbDictionary* dictionary = nullptr;
    database.getGroupDictionary(dictionary, AcDb::kForWrite);
    auto* group = new AcDbGroup(L"grid", true);
    AcDbObjectId id;
    dictionary->setAt(L"*", group, id);
    dictionary->close();
    group->append(line);
    group->append(text);
    group->close();
}

void switchLayers(AcDbDatabase& database)
{
    for (const LoadedLayer& loaded : sourceOf(host::coreOf(database)).layers)
    {
        host::setFlags(*loaded.layer, {!loaded.frozen, !loaded.locked, !loaded.off});
    }
}

void turn(host::DrawingState& state)
{
    state.view.twist += 0.5;
    state.view.centreX += 1;
    state.ucsFollow = state.ucsFollow == 0;
    state.ucsIcon ^= 1;
    state.modelUcs.toWorld = AcGeMatrix3d::rotation(0.25, AcGeVector3d(1, 2, 3));
    for (const wchar_t* name : {L"ELEVATION", L"GRIDUNIT", L"TEXTSIZE"})
    {
        state.variables[name] = 2.5;
    }
}

// Throws an Error if they are refused.
std::unique_ptr<AcDbDatabase> opened(std::string_view bytes)
{
    auto database = std::make_unique<AcDbDatabase>();
    load(host::coreOf(*database), TagFile::fromText(bytes, "FILE"));
    return database;
}

// Returns the reason why the bytes are not a drawing, or an empty text if they are one.
std::string refusal(std::string_view bytes)
{
    try
    {
        opened(bytes);
        return "";
    }
    catch (const Error& error)
    {
        return error.what();
    }
}

std::string complaintAboutChanges(AcDbDatabase& database)
{
    const std::size_t before = sourceOf(host::coreOf(database)).file.records("ENTITIES").size();
    addGrid(database);
    switchLayers(database);
    turn(host::stateOf(database));
    const std::string bytes = saved(database);
    const std::string why = refusal(bytes);
    if (!why.empty())
    {
        return "saved with changes it is refused: " + why;
    }
    const TagFile file = TagFile::fromText(bytes, "FILE");
    return file.records("ENTITIES").size() == before + newEntities
               ? ""
               : "saved with changes it has another number of entities";
}

// Looks at all that a plot would show.
void look(const TagFile& file)
{
    host::plot::Scene scene(file, 2000);
    host::plot::Extents extents(AcGeMatrix3d::kIdentity);
    scene.draw(extents);
}

std::string complaintAboutSaving(std::string_view bytes, AcDbDatabase& database)
{
    look(sourceOf(host::coreOf(database)).file);
    const std::string unchanged = saved(database);
    if (sourceOf(host::coreOf(database)).file.repairedRecords().empty() && unchanged != bytes)
    {
        return "saved unchanged it has other bytes";
    }
    const std::string why = refusal(unchanged);
    if (!why.empty())
    {
        return "saved unchanged it is refused: " + why;
    }
    return complaintAboutChanges(database);
}
}  // namespace

std::string complaintAbout(std::string_view bytes)
{
    const std::string why = refusal(bytes);
    if (why.empty())
    {
        try
        {
            return complaintAboutSaving(bytes, *opened(bytes));
        }
        catch (const std::exception& failure)
        {
            return std::string("it is read and cannot be saved: ") + failure.what();
        }
    }
    const bool oneLine = why.starts_with("FILE: ") && why.find('\n') == why.npos;
    return oneLine ? "" : "refused with \"" + why + '"';
}
}  // namespace tests
