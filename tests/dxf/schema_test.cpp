// Tests that what a table of host/dxf/schema writes can be read back by it.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <map>
#include <random>
#include <regex>

#include "host/database/drawing.h"
#include "host/dxf/binaryform.h"
#include "host/dxf/emptydrawing.h"
#include "host/dxf/filesource.h"
#include "host/dxf/load.h"
#include "host/dxf/headervariables.h"
#include "host/dxf/lineform.h"
#include "host/dxf/recordreader.h"
#include "host/dxf/schema/curves.h"
#include "host/dxf/schema/hatch.h"
#include "host/dxf/schema/objects.h"
#include "host/dxf/schema/references.h"
#include "host/dxf/schema/tablerecords.h"
#include "host/plot/entitytags.h"
#include "host/plot/tagcursor.h"
#include "tests/dxf/smalldrawing.h"

using namespace host::dxf;
namespace fs = std::filesystem;

namespace
{
// Random values of every type that a row can have.
class Values
{
public:
    void fill(Code, std::wstring& text)
    {
        const std::wstring letters = L"aZ09 _*^\\%\u00C4\u0416\u4E2D";
        text.clear();
        for (int i = below(12); i > 0; --i)
        {
            text += letters[std::size_t(below(int(letters.size())))];
        }
    }
    void fill(Code code, int& number)
    {
        const ValueType type = valueType(code);
        const int least = type == ValueType::int8    ? 0
                          : type == ValueType::int16 ? -32768
                                                     : std::numeric_limits<int>::min();
        const int most = type == ValueType::int8    ? 255
                         : type == ValueType::int16 ? 32767
                                                    : std::numeric_limits<int>::max();
        number = std::uniform_int_distribution(least, most)(m_random);
    }
    void fill(Code, double& number)
    {
        const double magnitude = std::pow(10, std::uniform_int_distribution(-30, 30)(m_random));
        number = below(4) == 0 ? below(100)
                               : std::uniform_real_distribution(-1.0, 1.0)(m_random) * magnitude;
    }
    void fill(Code, schema::Handle& handle)
    {
        handle = 1 + std::uniform_int_distribution<schema::Handle>()(m_random) / 4;
    }
    void fill(Code, std::string_view& text)
    {
        const std::string_view texts[] = {"", "0", "Walls", " A b ", "*D1"};
        text = texts[below(int(std::size(texts)))];
    }
    template <class Value>
    void fill(Code code, std::vector<Value>& values)
    {
        values.resize(std::size_t(below(4)));
        for (Value& value : values)
        {
            fill(code, value);
        }
    }
    void fill(Code code, schema::PlanePoint& point)
    {
        fill(code, point.x);
        fill(code, point.y);
    }
    void fill(Code code, AcGePoint3d& point) { fillPoint(code, point); }
    void fill(Code code, AcGeVector3d& vector) { fillPoint(code, vector); }
    template <class Value>
    void fill(Code code, std::optional<Value>& value)
    {
        value.reset();
        if (below(2) == 0)
        {
            fill(code, value.emplace());
        }
    }
    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }

private:
    template <class Point>
    void fillPoint(Code code, Point& point)
    {
        fill(code, point.x);
        fill(code, point.y);
        fill(code, point.z);
    }

    // The seed that the run prints.
    std::mt19937 m_random{unsigned(testing::UnitTest::GetInstance()->random_seed())};
};

template <class Row>
constexpr bool isAttribute = requires(const Row& row)
{
    row.member;
};

// Every attribute, some with their defaults.
template <class Table>
typename Table::RecordType randomRecord(const Table& table, Values& values)
{
    typename Table::RecordType record;
    schema::forEachRow(table.rows,
                       [&]<class Row>(const Row& row)
                       {
                           if constexpr (isAttribute<Row>)
                           {
                               if (values.below(4) != 0)
                               {
                                   values.fill(row.code, record.*row.member);
                               }
                           }
                       });
    return record;
}

template <class Table>
void expectSame(const Table& table, const typename Table::RecordType& read,
                const typename Table::RecordType& written, const Release& release)
{
    schema::forEachRow(table.rows,
                       [&]<class Row>(const Row& row)
                       {
                           if constexpr (isAttribute<Row>)
                           {
                               const auto& expected =
                                   has(release, row.since)
                                       ? written.*row.member
                                       : usual<typename Table::RecordType>().*row.member;
                               EXPECT_TRUE(same(read.*row.member, expected))
                                   << release.name << ' ' << table.type << ' ' << row.code.number();
                           }
                       });
}

std::string binaryOf(const std::string& ascii)
{
    std::string binary;
    BinaryEncoder encoder([&binary](std::string_view bytes) { binary += bytes; }, 2);
    encoder.take(ascii);
    encoder.finish();
    return binary;
}

std::string drawingOf(const Release& release, const std::string& record)
{
    return drawingWith(record, std::string(release.version));
}

template <class Row>
constexpr bool isList = !isAttribute<Row> ? false : !requires(const Row& row)
{
    row.when;
};

template <class Table>
constexpr bool hasList(const Table& table)
{
    bool found = false;
    schema::forEachRow(table.rows, [&found]<class Row>(const Row&) { found |= isList<Row>; });
    return found;
}

// The plot reads what the loader does not; it takes no lists.
template <class Table>
void expectPlotReads(const Table& table, const typename Table::RecordType& written,
                     const TagSource& source, const Record& record)
{
    const host::plot::EntityTags entity(source, record);
    expectSame(table, entity.read(table), written, source.file.release());
    if constexpr (requires(host::plot::TagCursor cursor) { cursor.read(table); })
    {
        host::plot::TagCursor cursor(entity);
        EXPECT_TRUE(cursor.seek(table));
        expectSame(table, cursor.read(table), written, source.file.release());
    }
}

template <class Table>
void expectReadBack(const Table& table, Values& values, const Release& release)
{
    const CodePage codePage(release, "ANSI_1252");
    const auto written = randomRecord(table, values);
    std::string tags;
    TagWriter writer([&tags](std::string_view bytes) { tags += bytes; }, TagStyle());
    if (table.type.empty())
    {
        writer.text(schema::recordType, "PART");
    }
    writeRecord(writer, table, written, FileForm{release, codePage});
    writer.text(schema::applicationData, "ACAD");  // an application's own, which is not asked
    writer.raw("330\nF\n40\n7\n");
    writer.flush();
    for (const std::string& drawing :
         {drawingOf(release, tags), binaryOf(drawingOf(release, tags))})
    {
        const TagFile file = TagFile::fromText(drawing, "FILE");
        const Record& record = file.records("ENTITIES")[0];
        EXPECT_EQ(file.typeName(record), table.type.empty() ? "PART" : table.type);
        const TagSource source{file, codePage};
        expectSame(table, readRecord(table, source, record), written, release);
        if (!hasList(table))
        {
            expectPlotReads(table, written, source, record);
        }
    }
}

// A new table is to be named here.
constexpr std::tuple allTables(
    schema::symbolTable, schema::linetype::table, schema::layer::table, schema::textstyle::table,
    schema::blockrecord::table, schema::viewport::table, schema::dictionary::table,
    schema::dictionary::entry, schema::group::table,
    // Entities that the host creates.
    schema::entity::look, schema::line::ends, schema::line::table, schema::text::words,
    schema::text::table, schema::polyline::shape, schema::polyline::table, schema::vertex::shape,
    schema::vertex::table, schema::sequenceend::table,
    // Records that it only reads.
    schema::block::table, schema::point::table, schema::circle::table, schema::arc::table,
    schema::ellipse::table, schema::solid::table, schema::solid::trace, schema::solid::face,
    schema::spline::table, schema::ray::table, schema::ray::xline, schema::leader::table,
    schema::multiline::table, schema::multiline::vertex, schema::multiline::element,
    schema::lightpolyline::table, schema::lightpolyline::vertex, schema::insert::table,
    schema::dimension::table, schema::attribute::table, schema::attribute::definition,
    schema::paragraphs::table, schema::hatch::table, schema::hatch::loopCount,
    schema::hatch::edgeCount, schema::hatch::patternLineCount, schema::hatch::loop,
    schema::hatch::polylineLoop, schema::hatch::vertex, schema::hatch::bulgedVertex,
    schema::hatch::edge, schema::hatch::lineEdge, schema::hatch::arcEdge,
    schema::hatch::ellipseEdge, schema::hatch::splineEdge, schema::hatch::knot, schema::hatch::pole,
    schema::hatch::patternLine);

class EveryRelease : public testing::TestWithParam<const char*>
{
protected:
    const Release& release() const { return *findRelease(GetParam()); }
    Values values;
};

INSTANTIATE_TEST_SUITE_P(Schema, EveryRelease,
                         testing::Values("AC1009", "AC1012", "AC1014", "AC1015", "AC1018", "AC1021",
                                         "AC1024", "AC1027", "AC1032"));

TEST_P(EveryRelease, readsBackWhatEveryTableWrites)
{
    const auto readBack = [this](const auto&... tables)
    { (expectReadBack(tables, values, release()), ...); };
    for (int i = 0; i < 50; ++i)
    {
        std::apply(readBack, allTables);
    }
}

std::string byForm(const schema::line::Line& line, const FileForm& form,
                   std::optional<double> elevation = {})
{
    std::string bytes;
    TagWriter writer([&](std::string_view more) { bytes += more; }, TagStyle());
    writer.record(lineFormOf(line, form, TagStyle(), line.handle != 0, elevation), line.handle,
                  {line.start.x, line.start.y, line.start.z, line.end.x, line.end.y, line.end.z});
    writer.flush();
    return bytes;
}

std::string byTable(const schema::line::Line& line, const FileForm& form)
{
    std::string bytes;
    TagWriter writer([&](std::string_view more) { bytes += more; }, TagStyle());
    writeRecord(writer, schema::line::table, line, form);
    writer.flush();
    return bytes;
}

// The form of a million lines is the table's.
TEST_P(EveryRelease, writesAFormOfLinesAsTheTableDoes)
{
    const CodePage codePage(release(), "ANSI_1252");
    const FileForm form{release(), codePage};
    for (int i = 0; i < 50; ++i)
    {
        schema::line::Line line = randomRecord(schema::line::table, values);
        EXPECT_EQ(byForm(line, form), byTable(line, form));
        line.end.z = line.start.z;
        EXPECT_EQ(byForm(line, form, line.end.z), byTable(line, form));
    }
}

template <class Variables, class Rows>
void expectVariablesReadBack(const Rows& rows, Values& values, const std::string& prefix)
{
    Variables written;
    schema::forEachRow(rows, [&](const auto& row) { values.fill(row.code, written.*row.member); });
    const TagFile empty = TagFile::fromText(emptyDrawing(), "FILE");
    const CodePage codePage(empty.release(), empty.codePageName());
    Edits edits(empty);
    HeaderEdits{edits, codePage}.setAll(rows, written, prefix);
    std::string saved;
    TagWriter writer([&saved](std::string_view bytes) { saved += bytes; }, TagStyle());
    edits.write(writer);
    writer.flush();
    AcDbDatabase database;
    load(host::coreOf(database), TagFile::fromText(saved, "FILE"));
    const auto read = readVariables<Variables>(rows, host::stateOf(database).variables, prefix);
    schema::forEachRow(
        rows, [&](const auto& row)
        { EXPECT_TRUE(same(read.*row.member, written.*row.member)) << prefix << row.name; });
}

// The text of every source in a folder of the host, by its path.
std::map<std::string, std::string> sourcesIn(const std::string& folder)
{
    std::map<std::string, std::string> sources;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(TESTS_DIR) / ".." / folder))
    {
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
        {
            std::ifstream file(entry.path(), std::ios::binary);
            sources[entry.path().lexically_normal().generic_string()] =
                std::string(std::istreambuf_iterator<char>(file), {});
        }
    }
    return sources;
}

int matchesIn(const std::string& text, const std::string& pattern)
{
    const std::regex expression(pattern);
    return int(std::distance(std::sregex_iterator(text.begin(), text.end(), expression), {}));
}

// No function takes a bare number for a code: whoever makes one names the type. Outside of the
// schema only those make one who have read its number from a file, and they call the number `code`.
TEST(Schema, isTheOnlyPlaceThatNamesCodesByTheirNumbers)
{
    const std::string made =
        "\\bCode( \\w+)?\\s*[({](?!\\)|(int\\()?code\\)|(const|Code) )|Code>\\s*[({]|"
        "\\(Code\\)\\s*\\w|number\\(\\)\\s*[=!<>]=?\\s*\\d";
    const std::string constant = "constexpr int code\\b";
    for (const auto& [path, text] : sourcesIn("host"))
    {
        if (path.find("/dxf/schema/") == path.npos)
        {
            EXPECT_EQ(matchesIn(text, made), 0) << path;
            EXPECT_EQ(matchesIn(text, constant), 0) << path;
        }
    }
}

TEST(Schema, hasNoTableThatIsNotReadBackHere)
{
    int tables = 0;
    int variables = 0;
    for (const auto& [path, text] : sourcesIn("host/dxf/schema"))
    {
        tables += matchesIn(text, "\ninline constexpr auto \\w+ =\\s+(table|part|sequence)Of<");
        variables += matchesIn(text, "\ninline constexpr auto \\w+ =\\s+rowsOf\\(\\s*variable\\(");
    }
    EXPECT_EQ(tables, int(std::tuple_size_v<decltype(allTables)>));
    EXPECT_EQ(variables, 5);
}

TEST(Schema, readsBackWhatEveryTableOfHeaderVariablesWrites)
{
    Values values;
    for (int i = 0; i < 20; ++i)
    {
        expectVariablesReadBack<schema::CurrentVariables>(schema::currentVariables, values, "");
        expectVariablesReadBack<schema::UcsVariables>(schema::ucsVariables, values, "");
        expectVariablesReadBack<schema::UcsVariables>(schema::ucsVariables, values, "P");
        expectVariablesReadBack<schema::SpaceVariables>(schema::spaceVariables, values, "");
        expectVariablesReadBack<schema::ExtentsVariables>(schema::extentsVariables, values, "");
        expectVariablesReadBack<schema::HandleVariables>(schema::handleVariables, values, "");
    }
}
}  // namespace
