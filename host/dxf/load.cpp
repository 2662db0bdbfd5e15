#include "host/dxf/load.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "host/basics/angle.h"
#include "host/database/dictionaryentries.h"
#include "host/dxf/filesource.h"
#include "host/dxf/loadstate.h"
#include "host/dxf/recordreader.h"
#include "host/dxf/schema/objects.h"
#include "host/dxf/schema/tablerecords.h"
#include "host/text/foldcase.h"

namespace host::dxf
{
namespace
{
TagSource tagsOf(const FileSource& source)
{
    return {source.file, source.codePage};
}

template <class Table>
std::wstring nameOf(const Table& table, const FileSource& source, const Record& record)
{
    return readRecord(table, tagsOf(source), record, std::array{schema::name, schema::symbolFlags})
        .name;
}

void loadLayer(DatabaseCore& core, FileSource& source, const Record& record)
{
    const std::array wanted{schema::name, schema::symbolFlags, schema::layer::color};
    const schema::layer::Layer read =
        readRecord(schema::layer::table, tagsOf(source), record, wanted);
    auto* layer = core.addLoadedRecord<AcDbLayerTableRecord>(core.roots()[Root::layerTable],
                                                             read.name, record.handle);
    const bool frozen = read.flags & schema::layer::frozenFlag;
    const bool locked = read.flags & schema::layer::lockedFlag;
    const bool off = read.color < 0;
    setFlags(*layer, {frozen, locked, off});
    source.layers.push_back({&record, layer, frozen, locked, off});
}

void loadTextStyle(DatabaseCore& core, const FileSource& source, const Record& record)
{
    const std::array wanted{schema::name, schema::symbolFlags, schema::textstyle::height,
                            schema::textstyle::widthFactor, schema::textstyle::oblique};
    const schema::textstyle::TextStyle read =
        readRecord(schema::textstyle::table, tagsOf(source), record, wanted);
    auto* style = core.addLoadedRecord<AcDbTextStyleTableRecord>(core.roots()[Root::textStyleTable],
                                                                 read.name, record.handle);
    setTextStyle(*style, toRadians(read.oblique), read.widthFactor, read.height);
}

void loadBlockRecord(DatabaseCore& core, const FileSource& source, const Record& record)
{
    const std::wstring name = nameOf(schema::blockrecord::table, source, record);
    auto* block = core.addLoadedRecord<AcDbBlockTableRecord>(core.roots()[Root::blockTable], name,
                                                             record.handle);
    if (equalNoCase(name, ACDB_MODEL_SPACE))
    {
        core.roots().set(Root::modelSpace, block->objectId().stub());
    }
}

template <class Table>
AcDbStub* makeTable(DatabaseCore& core, const FileSource& source, std::string_view type)
{
    for (const Record& record : source.file.records(schema::section::tables))
    {
        if (source.file.typeName(record) == schema::symbolTable.type &&
            tableName(source.file, record) == type)
        {
            return core.addLoaded(new Table(), nullptr, record.handle);
        }
    }
    return core.addLoaded(new Table(), nullptr, 0);
}

void loadTables(DatabaseCore& core, FileSource& source)
{
    core.roots().set(Root::blockTable,
                     makeTable<AcDbBlockTable>(core, source, schema::blockrecord::table.type));
    core.roots().set(Root::layerTable,
                     makeTable<AcDbLayerTable>(core, source, schema::layer::table.type));
    core.roots().set(Root::linetypeTable,
                     makeTable<AcDbLinetypeTable>(core, source, schema::linetype::table.type));
    core.roots().set(Root::textStyleTable,
                     makeTable<AcDbTextStyleTable>(core, source, schema::textstyle::table.type));
    for (const Record& record : source.file.records(schema::section::tables))
    {
        const std::string_view type = source.file.typeName(record);
        if (type == schema::layer::table.type)
        {
            loadLayer(core, source, record);
        }
        else if (type == schema::linetype::table.type)
        {
            core.addLoadedRecord<AcDbLinetypeTableRecord>(
                core.roots()[Root::linetypeTable], nameOf(schema::linetype::table, source, record),
                record.handle);
        }
        else if (type == schema::textstyle::table.type)
        {
            loadTextStyle(core, source, record);
        }
        else if (type == schema::blockrecord::table.type)
        {
            loadBlockRecord(core, source, record);
        }
        else if (type == schema::viewport::table.type && source.viewport == nullptr &&
                 equalNoCase(nameOf(schema::viewport::table, source, record),
                             schema::viewport::active))
        {
            source.viewport = &record;
        }
    }
}

// Adds a record that every drawing has if the file does not contain it.
template <class Record>
void ensure(DatabaseCore& core, FileSource& source, AcDbStub* table, std::string_view type,
            const std::wstring& name)
{
    if (!static_cast<AcDbSymbolTable*>(table->object)->has(name.c_str()))
    {
        auto* record = core.addLoadedRecord<Record>(table, name, 0);
        source.added.push_back({type, record->objectId().stub()});
    }
}

// Adds missing records. The spaces of R12 are not objects, and a drawing without tables has no
// model space either.
void completeTables(DatabaseCore& core, FileSource& source)
{
    if (core.roots()[Root::modelSpace] == nullptr)
    {
        auto* space = core.addLoadedRecord<AcDbBlockTableRecord>(core.roots()[Root::blockTable],
                                                                 ACDB_MODEL_SPACE, 0);
        core.roots().set(Root::modelSpace, space->objectId().stub());
    }
    ensure<AcDbLayerTableRecord>(core, source, core.roots()[Root::layerTable],
                                 schema::layer::table.type, L"0");
    ensure<AcDbTextStyleTableRecord>(core, source, core.roots()[Root::textStyleTable],
                                     schema::textstyle::table.type, L"Standard");
    for (const wchar_t* name : {L"ByBlock", L"ByLayer", L"Continuous"})
    {
        ensure<AcDbLinetypeTableRecord>(core, source, core.roots()[Root::linetypeTable],
                                        schema::linetype::table.type, name);
    }
}

const Record* objectWithHandle(const TagFile& file, std::uint64_t handle)
{
    const auto records = file.records(schema::section::objects);
    const auto found = std::find_if(records.begin(), records.end(),
                                    [handle](const Record& r) { return r.handle == handle; });
    return found != records.end() && handle != 0 ? &*found : nullptr;
}

// Calls take(key, handle) for every entry.
template <class Take>
void forEachEntry(const FileSource& source, const Record& dictionary, Take take)
{
    std::wstring key;
    for (const Tag& tag : source.file.tags(dictionary))
    {
        if (tag.code == schema::dictionary::key)
        {
            key = source.codePage.decode(tag.value);
        }
        else if (!key.empty() && (tag.code == schema::dictionary::softEntry ||
                                  tag.code == schema::dictionary::hardEntry))
        {
            take(key, source.file.handle(tag));
            key.clear();
        }
    }
}

void loadGroupDictionary(DatabaseCore& core, FileSource& source)
{
    for (const Record& record : source.file.records(schema::section::objects))
    {
        if (source.rootDictionary == nullptr &&
            source.file.typeName(record) == schema::dictionary::table.type)
        {
            source.rootDictionary = &record;  // the first dictionary contains all others
        }
    }
    if (source.rootDictionary != nullptr)
    {
        std::uint64_t groups = 0;
        forEachEntry(source, *source.rootDictionary,
                     [&groups](const std::wstring& key, std::uint64_t handle)
                     { groups = key == schema::dictionary::groups ? handle : groups; });
        source.groupDictionary = objectWithHandle(source.file, groups);
    }
    auto* dictionary = new AcDbDictionary();
    const Record* record = source.groupDictionary;
    core.roots().set(Root::groupDictionary,
                     core.addLoaded(dictionary, nullptr, record != nullptr ? record->handle : 0));
    if (record == nullptr)
    {
        return;
    }
    DictionaryEntries& entries = DictionaryEntries::of(*dictionary);
    forEachEntry(source, *record,
                 [&](const std::wstring& key, std::uint64_t handle)
                 { entries.addLoaded(key, core.objects().addForeign(handle)); });
}
}  // namespace

std::string_view tableName(const TagFile& file, const Record& table)
{
    for (const Tag& tag : file.tags(table))
    {
        if (tag.code == schema::name)
        {
            return trimmed(tag.value);
        }
    }
    return {};
}

void load(DatabaseCore& core, TagFile file)
{
    auto owned = std::make_unique<FileSource>(std::move(file));
    FileSource& source = *owned;
    core.setSource(std::move(owned));
    if (source.file.highestHandle() > highestUsableHandle)
    {
        source.file.refuse(1, "handles that leave room for new objects", "one above all others");
    }
    core.handles().startAt(source.file.highestHandle() + 1);
    loadTables(core, source);
    completeTables(core, source);
    loadGroupDictionary(core, source);
    loadState(core, source);
    source.state = core.state();
    source.current = core.current();
}
}  // namespace host::dxf
