#include "host/dxf/savetables.h"

#include <algorithm>
#include <set>

#include "dbents.h"
#include "host/database/drawing.h"
#include "host/database/entitystyle.h"
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
            add(core.lineStyles[stub->style]);
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
    std::string name;  // encoded
};

void writeLayer(const NewRecord& record, TagWriter& writer)
{
    writer.text(2, record.name);
    writer.integer(70, 0);
    writer.integer(62, 7);
    writer.text(6, "CONTINUOUS");
}

void writeLinetype(const NewRecord& record, TagWriter& writer)
{
    writer.text(2, record.name);
    writer.integer(70, 0);
    writer.text(3, "Solid line");
    writer.integer(72, 'A');
    writer.integer(73, 0);
    writer.real(40, 0);
}

void writeTextStyle(const NewRecord& record, TagWriter& writer)
{
    writer.text(2, record.name);
    writer.integer(70, 0);
    writer.real(40, 0);
    writer.real(41, 1);
    writer.real(50, 0);
    writer.integer(71, 0);
    writer.real(42, 2.5);
    writer.text(3, "txt");
    writer.text(4, "");
}

struct Kind
{
    std::string_view type;
    std::string_view subclass;
    void (*write)(const NewRecord& record, TagWriter& writer);
};

// In the order of a file.
constexpr Kind kinds[] = {
    {"LTYPE", "AcDbLinetypeTableRecord", writeLinetype},
    {"LAYER", "AcDbLayerTableRecord", writeLayer},
    {"STYLE", "AcDbTextStyleTableRecord", writeTextStyle},
};

class RecordWriter
{
public:
    RecordWriter(const Release& release, bool handles) : m_release(release), m_handles(handles) {}

    // A table of its own, or only the records when the file has the table.
    void writeTable(const Kind& kind, std::uint64_t handle, const std::vector<NewRecord>& records,
                    TagWriter& writer) const;
    void writeRecords(const Kind& kind, std::uint64_t table, const std::vector<NewRecord>& records,
                      TagWriter& writer) const;

private:
    void begin(const Kind& kind, std::uint64_t handle, std::uint64_t owner,
               TagWriter& writer) const;

    const Release& m_release;
    bool m_handles;
};

void RecordWriter::begin(const Kind& kind, std::uint64_t handle, std::uint64_t owner,
                         TagWriter& writer) const
{
    writer.text(0, kind.type);
    if (m_handles)
    {
        writer.handle(5, handle);
    }
    if (m_release.ownership && owner != 0)
    {
        writer.handle(330, owner);
    }
    if (m_release.objects)
    {
        writer.text(100, "AcDbSymbolTableRecord");
        writer.text(100, kind.subclass);
    }
}

void RecordWriter::writeRecords(const Kind& kind, std::uint64_t table,
                                const std::vector<NewRecord>& records, TagWriter& writer) const
{
    for (const NewRecord& record : records)
    {
        begin(kind, record.handle, table, writer);
        kind.write(record, writer);
    }
}

void RecordWriter::writeTable(const Kind& kind, std::uint64_t handle,
                              const std::vector<NewRecord>& records, TagWriter& writer) const
{
    writer.text(0, "TABLE");
    writer.text(2, kind.type);
    if (m_release.objects)
    {
        writer.handle(5, handle);
        writer.text(100, "AcDbSymbolTable");
    }
    writer.integer(70, std::int64_t(records.size()));
    writeRecords(kind, handle, records, writer);
    writer.text(0, "ENDTAB");
}

std::uint64_t tableHandle(const TagFile& file, std::string_view type)
{
    for (const Record& record : file.records("TABLES"))
    {
        if (file.typeName(record) == "TABLE" && tableName(file, record) == type)
        {
            return record.handle;
        }
    }
    return 0;
}

// Where the table's records end; nothing when the file has no such table.
const Record* endOfTable(const TagFile& file, std::string_view type)
{
    bool inside = false;
    for (const Record& record : file.records("TABLES"))
    {
        const std::string_view name = file.typeName(record);
        if (name == "ENDTAB" && inside)
        {
            return &record;
        }
        if (name == "TABLE")
        {
            inside = tableName(file, record) == type;
        }
    }
    return nullptr;
}

// A section of tables stands after HEADER and CLASSES.
std::size_t placeForTables(const TagFile& file)
{
    std::size_t place = file.firstTag();
    for (const Section& section : file.sections())
    {
        if (section.name == "HEADER" || section.name == "CLASSES")
        {
            place = file.endOfSection(section);
        }
    }
    return place;
}
// R12 has no records for the two linetypes that stand for others.
bool isRecordOf(const Release& release, const std::wstring& name)
{
    return release.objects || (!equalNoCase(name, L"ByLayer") && !equalNoCase(name, L"ByBlock"));
}

std::vector<NewRecord> missingRecords(DatabaseCore& core, const Kind& kind, const Stubs& named)
{
    const FileSource& source = sourceOf(core);
    std::vector<NewRecord> records;
    for (const AddedRecord& added : source.added)
    {
        const std::wstring name = recordName(AcDbObjectId(added.stub));
        if (added.type != kind.type || !named.contains(added.stub) ||
            !isRecordOf(source.file.release(), name))
        {
            continue;
        }
        added.stub->handle = added.stub->handle != 0 ? added.stub->handle : core.nextHandle++;
        records.push_back({added.stub->handle, source.codePage.encode(name)});
    }
    return records;
}

void insertTables(Edits& edits, const std::string& tables)
{
    if (const Section* section = edits.file().section("TABLES"))
    {
        edits.insert(section->end, [tables](TagWriter& writer) { writer.raw(tables); });
        return;
    }
    edits.insert(
        placeForTables(edits.file()), [tables](TagWriter& writer)
        { writeSection(writer, "TABLES", [&tables](TagWriter& out) { out.raw(tables); }); });
}
}  // namespace

void saveTables(Edits& edits, DatabaseCore& core, const LiveStubs& live)
{
    const FileSource& source = sourceOf(core);
    if (source.added.empty())
    {
        return;
    }
    const RecordWriter writes(source.file.release(), source.file.hasHandles());
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
            edits.insert(end->begin, [writes, &kind, table, records](TagWriter& writer)
                         { writes.writeRecords(kind, table, records, writer); });
        }
        else if (!records.empty())
        {
            writes.writeTable(kind, core.nextHandle++, records, newTables);
        }
    }
    newTables.flush();
    if (!tables.empty())
    {
        insertTables(edits, tables);
    }
}
}  // namespace host::dxf
