#include "host/dxf/savetables.h"

#include <algorithm>
#include <set>

#include "dbents.h"
#include "host/database/drawing.h"
#include "host/database/entitystyle.h"
#include "host/dxf/load.h"
#include "host/dxf/recordwriter.h"
#include "host/dxf/schema/tablerecords.h"
#include "host/text/foldcase.h"

namespace host::dxf
{
namespace
{
using Stubs = std::set<const AcDbStub*>;

Stubs namedRecords(const DatabaseCore& core, const LiveStubs& live)
{
    Stubs named;
    const auto add = [&named](const LineStyle& style) {
        named.insert({style.layer, style.linetype});
    };
    for (const AcDbStub* stub : live)
    {
        if (stub->packed())
        {
            add(core.objects().style(stub->style));
        }
        else if (const AcDbEntity* entity = AcDbEntity::cast(stub->object))
        {
            add(EntityStyle::styleOf(*entity));
            const AcDbText* text = AcDbText::cast(entity);
            named.insert(text != nullptr ? text->textStyle().stub() : nullptr);
        }
    }
    return named;
}

struct NewRecord
{
    std::uint64_t handle;
    std::wstring name;
};

template <auto& table>
void writeNew(const NewRecord& record, std::uint64_t owner, const FileForm& form, TagWriter& writer)
{
    typename std::remove_reference_t<decltype(table)>::RecordType made;
    made.handle = record.handle;
    made.owner = owner;
    made.name = record.name;
    writeRecord(writer, table, made, form);
}

struct Kind
{
    std::string_view type;
    void (*write)(const NewRecord& record, std::uint64_t owner, const FileForm& form,
                  TagWriter& writer);
};

template <auto& table>
constexpr Kind kindOf()
{
    return {table.type, writeNew<table>};
}

// The kinds, in the order of a file.
constexpr Kind kinds[] = {
    kindOf<schema::linetype::table>(),
    kindOf<schema::layer::table>(),
    kindOf<schema::textstyle::table>(),
};

void writeRecords(const Kind& kind, std::uint64_t table, const std::vector<NewRecord>& records,
                  const FileForm& form, TagWriter& writer)
{
    for (const NewRecord& record : records)
    {
        kind.write(record, table, form, writer);
    }
}

void writeTable(const Kind& kind, std::uint64_t handle, const std::vector<NewRecord>& records,
                const FileForm& form, TagWriter& writer)
{
    schema::SymbolTable table;
    table.name = std::wstring(kind.type.begin(), kind.type.end());
    table.handle = handle;
    table.count = int(records.size());
    writeRecord(writer, schema::symbolTable, table, form);
    writeRecords(kind, handle, records, form, writer);
    writer.text(schema::recordType, schema::endOfTable);
}

std::uint64_t tableHandle(const TagFile& file, std::string_view type)
{
    for (const Record& record : file.records(schema::section::tables))
    {
        if (file.typeName(record) == schema::symbolTable.type && tableName(file, record) == type)
        {
            return record.handle;
        }
    }
    return 0;
}

// Returns the record that ends the table, or nullptr if the file lacks the table.
const Record* endOfTable(const TagFile& file, std::string_view type)
{
    bool inside = false;
    for (const Record& record : file.records(schema::section::tables))
    {
        const std::string_view name = file.typeName(record);
        if (name == schema::endOfTable && inside)
        {
            return &record;
        }
        if (name == schema::symbolTable.type)
        {
            inside = tableName(file, record) == type;
        }
    }
    return nullptr;
}

// Returns the offset for a new section of tables, which follows HEADER and CLASSES.
std::size_t placeForTables(const TagFile& file)
{
    std::size_t place = file.firstTag();
    for (const Section& section : file.sections())
    {
        if (section.name == schema::section::header || section.name == schema::section::classes)
        {
            place = file.endOfSection(section);
        }
    }
    return place;
}

// R12 has no records for the linetypes ByLayer and ByBlock.
bool isRecordOf(const Release& release, const std::wstring& name)
{
    return release.objects || (!equalNoCase(name, L"ByLayer") && !equalNoCase(name, L"ByBlock"));
}

std::vector<NewRecord> missingRecords(DatabaseCore& core, const Kind& kind, const Stubs& named)
{
    const FileSource& source = sourceOf(core);
    const TagFile& file = source.file;
    std::vector<NewRecord> records;
    for (const AddedRecord& added : source.added)
    {
        const std::wstring name = recordName(AcDbObjectId(added.stub));
        if (added.type != kind.type || !named.contains(added.stub) ||
            !isRecordOf(file.release(), name))
        {
            continue;
        }
        if (added.stub->handle() == 0)
        {
            core.objects().setHandle(added.stub, core.handles().take());
        }
        records.push_back({file.hasHandles() ? added.stub->handle() : 0, name});
    }
    return records;
}

void insertTables(Edits& edits, const std::string& tables)
{
    if (const Section* section = edits.file().section(schema::section::tables))
    {
        edits.insert(section->end, [tables](TagWriter& writer) { writer.raw(tables); });
        return;
    }
    edits.insert(placeForTables(edits.file()),
                 [tables](TagWriter& writer) {
                     writeSection(writer, schema::section::tables,
                                  [&tables](TagWriter& out) { out.raw(tables); });
                 });
}
}  // namespace

void saveTables(Edits& edits, DatabaseCore& core, const LiveStubs& live)
{
    const FileSource& source = sourceOf(core);
    if (source.added.empty())
    {
        return;
    }
    const FileForm form{source.file.release(), source.codePage};
    const Stubs named = namedRecords(core, live);
    std::string tables;
    TagWriter newTables([&tables](std::string_view bytes) { tables += bytes; },
                        source.file.style());
    for (const Kind& kind : kinds)
    {
        const std::vector<NewRecord> records = missingRecords(core, kind, named);
        const Record* end = records.empty() ? nullptr : endOfTable(source.file, kind.type);
        if (end != nullptr)
        {
            const std::uint64_t table = tableHandle(source.file, kind.type);
            edits.insert(end->begin, [form, &kind, table, records](TagWriter& writer)
                         { writeRecords(kind, table, records, form, writer); });
        }
        else if (!records.empty())
        {
            writeTable(kind, core.handles().take(), records, form, newTables);
        }
    }
    newTables.flush();
    if (!tables.empty())
    {
        insertTables(edits, tables);
    }
}
}  // namespace host::dxf
