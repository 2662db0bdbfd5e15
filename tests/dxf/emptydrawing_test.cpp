#include "host/dxf/emptydrawing.h"

#include <cinttypes>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>

#include "host/dxf/tagfile.h"

using namespace host::dxf;

namespace
{
std::string headerValue(const TagFile& file, std::string_view name)
{
    std::string values;
    for (const Tag& tag : file.tags(*file.header(name)))
    {
        values += (values.empty() ? "" : " ") + std::string(tag.value);
    }
    return values;
}

std::string outputOf(const std::string& command)
{
    std::FILE* pipe = ::popen(command.c_str(), "r");
    std::string output;
    for (int c; pipe && (c = std::fgetc(pipe)) != EOF;)
    {
        output += static_cast<char>(c);
    }
    if (pipe)
    {
        ::pclose(pipe);
    }
    return output;
}
}  // namespace

TEST(EmptyDrawing, itIsMetricAndLooksAtTheWorldPlane)
{
    const TagFile file = TagFile::fromText(emptyDrawing(), "new");
    const std::pair<const char*, const char*> rows[] = {
        {"$ACADVER", "AC1027"},
        {"$DWGCODEPAGE", "ANSI_1252"},
        {"$INSUNITS", "4"},
        {"$MEASUREMENT", "1"},
        {"$CLAYER", "0"},
        {"$TEXTSTYLE", "Standard"},
        {"$CECOLOR", "256"},
        {"$CELTYPE", "ByLayer"},
        {"$CELWEIGHT", "-1"},
        {"$CELTSCALE", "1.0"},
        {"$LTSCALE", "1.0"},
        {"$ELEVATION", "0.0"},
        {"$UCSNAME", ""},
        {"$UCSORG", "0.0 0.0 0.0"},
        {"$UCSXDIR", "1.0 0.0 0.0"},
        {"$UCSYDIR", "0.0 1.0 0.0"},
        {"$TILEMODE", "1"},
        {"$LUNITS", "2"},
        {"$LUPREC", "4"},
        {"$AUNITS", "0"},
        {"$AUPREC", "0"},
    };
    for (const auto& [name, value] : rows)
    {
        EXPECT_EQ(headerValue(file, name), value) << name;
    }
    EXPECT_TRUE(file.records("ENTITIES").empty());
}

TEST(EmptyDrawing, theNextHandleIsAboveAllHandles)
{
    const TagFile file = TagFile::fromText(emptyDrawing(), "new");
    char next[32];
    std::snprintf(next, sizeof next, "%" PRIX64, file.highestHandle() + 1);
    EXPECT_EQ(headerValue(file, "$HANDSEED"), next);
}

TEST(EmptyDrawing, everyReferenceNamesARecord)
{
    const TagFile file = TagFile::fromText(emptyDrawing(), "new");
    for (const Record& record : file.records())
    {
        for (const Tag& tag : file.tags(record))
        {
            const bool refers =
                (tag.code.number() >= 320 && tag.code.number() < 370) || tag.code.number() == 390;
            if (!refers || file.handle(tag) == 0)
            {
                continue;
            }
            EXPECT_NE(std::ranges::find(file.records(), file.handle(tag), &Record::handle),
                      file.records().end())
                << "line " << tag.line;
        }
    }
}

TEST(EmptyDrawing, everyTableCountsItsEntries)
{
    const TagFile file = TagFile::fromText(emptyDrawing(), "new");
    std::int64_t stated = 0;
    std::int64_t counted = 0;
    for (const Record& record : file.records("TABLES"))
    {
        if (file.typeName(record) == "ENDTAB")
        {
            EXPECT_EQ(stated, counted) << "line " << record.line;
        }
        else if (file.typeName(record) != "TABLE")
        {
            ++counted;
        }
        else
        {
            for (const Tag& tag : file.tags(record))
            {
                if (counted = 0; tag.code.number() == 70)
                {
                    stated = file.integer(tag);
                }
            }
        }
    }
}

TEST(EmptyDrawing, anAuditFindsNothingToRepair)
{
    if (outputOf("/usr/bin/python3 -c 'import ezdxf; print(1)' 2>&1") != "1\n")
    {
        GTEST_SKIP() << "python3-ezdxf is not installed";
    }
    const std::string path = testing::TempDir() + "empty_drawing.dxf";
    std::ofstream(path, std::ios::binary) << emptyDrawing();
    EXPECT_EQ(outputOf("/usr/bin/python3 -c 'import ezdxf, sys; "
                       "a = ezdxf.readfile(sys.argv[1]).audit(); "
                       "print(len(a.errors), len(a.fixes))' '" +
                       path + "' 2>&1"),
              "0 0\n");
    std::remove(path.c_str());
}
