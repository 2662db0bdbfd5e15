#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "host/dxf/binaryform.h"
#include "host/dxf/atomicsave.h"
#include "tests/dxf/smalldrawing.h"
#include "tests/support/sanitized.h"

using namespace host::dxf;
namespace fs = std::filesystem;

namespace
{
// A folder of real drawings, too big to be part of the project.
fs::path drawingsFolder()
{
    const char* folder = std::getenv("NETRAX_DRAWINGS");
    return folder ? fs::path(folder) : fs::path(TESTS_DIR) / "../../shared/drawings";
}

std::vector<std::string> drawings()
{
    std::vector<std::string> paths;
    std::error_code isNotThere;
    for (const auto& entry : fs::directory_iterator(drawingsFolder(), isNotThere))
    {
        if (entry.path().extension() == ".dxf")
        {
            paths.push_back(entry.path().string());
        }
    }
    std::ranges::sort(paths);
    return paths;
}

std::string bytesOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The ASCII drawings of R2000 and later, by their names in the folder.
bool shouldBeRead(const std::string& path)
{
    return path.find("bad_r12_no_sections") == path.npos;
}

std::string refusalOfFile(const std::string& path)
{
    try
    {
        TagFile::read(path);
        return "";
    }
    catch (const Error& error)
    {
        return error.what();
    }
}

// Bytes from one cut to the next, for a test of seconds: a cut costs the time to read up to it.
std::size_t stepOfCuts(const std::string& drawing)
{
#ifdef WATCHED_FOR_ADDRESSES
    return drawing.size() > 100000 ? 9973 : 29;
#else
    return drawing.size() > 100000 ? 997 : 1;
#endif
}

// The first thing that is not as it must be when the drawing is cut.
std::string complaintAboutCuts(const std::string& drawing)
{
    const std::size_t eof = drawing.rfind("EOF") + (isBinary(drawing) ? 4 : 3);
    for (std::size_t size = 0; size < drawing.size(); size += stepOfCuts(drawing))
    {
        const std::string said = refusal(drawing.substr(0, size));
        const bool inOneLine = said.starts_with("FILE: ") && said.find('\n') == said.npos;
        if (size < eof ? !inOneLine : said != "read")
        {
            return "cut after " + std::to_string(size) + " bytes: " + said;
        }
    }
    return "";
}
}  // namespace

TEST(SharedDrawings, aDrawingSavedUnchangedIsTheSameByteForByte)
{
    const fs::path copy = fs::path(testing::TempDir()) / "round_trip.dxf";
    int count = 0;
    for (const std::string& path : drawings())
    {
        if (!shouldBeRead(path))
        {
            continue;
        }
        const TagFile file = TagFile::read(path);
        saveAtomically(copy.string(), Edits(file));
        EXPECT_EQ(bytesOf(copy), bytesOf(path)) << path;
        EXPECT_GT(file.records("ENTITIES").size(), 0u) << path;
        ++count;
    }
    fs::remove(copy);
    if (count == 0)
    {
        GTEST_SKIP() << "no drawings in " << drawingsFolder();
    }
    std::cout << count << " drawings saved unchanged\n";
}

TEST(SharedDrawings, theRecordsOfASectionFollowEachOtherWithoutGaps)
{
    int count = 0;
    for (const std::string& path : drawings())
    {
        if (!shouldBeRead(path))
        {
            continue;
        }
        const TagFile file = TagFile::read(path);
        for (const Section& section : file.sections())
        {
            std::size_t end = section.begin;
            for (const Record& record : file.records(section.name))
            {
                EXPECT_EQ(record.begin, end) << path;
                end = record.end;
            }
            EXPECT_TRUE(section.recordCount == 0 || end == section.end) << path;
        }
        ++count;
    }
    if (count == 0)
    {
        GTEST_SKIP() << "no drawings in " << drawingsFolder();
    }
}

TEST(SharedDrawings, brokenOnesAreRefusedInOneLine)
{
    int count = 0;
    for (const std::string& path : drawings())
    {
        if (shouldBeRead(path))
        {
            continue;
        }
        const std::string message = refusalOfFile(path);
        EXPECT_TRUE(message.starts_with(path + ": line ")) << path << " -> " << message;
        EXPECT_EQ(message.find('\n'), message.npos);
        ++count;
    }
    if (count == 0)
    {
        GTEST_SKIP() << "no such drawings in " << drawingsFolder();
    }
    std::cout << count << " drawings refused\n";
}

TEST(SharedDrawings, cutAnywhereTheyAreRefusedInOneLine)
{
    int count = 0;
    for (const std::string& path : drawings())
    {
        if (!shouldBeRead(path))
        {
            continue;
        }
        EXPECT_EQ(complaintAboutCuts(bytesOf(path)), "") << path;
        ++count;
    }
    if (count == 0)
    {
        GTEST_SKIP() << "no drawings in " << drawingsFolder();
    }
    std::cout << count << " drawings cut\n";
}
