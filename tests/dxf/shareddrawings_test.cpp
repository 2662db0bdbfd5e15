#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "host/dxf/save_atomic.h"

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
        if (entry.path().extension() == ".dxf")
            paths.push_back(entry.path().string());
    std::ranges::sort(paths);
    return paths;
}

std::string bytesOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// ASCII drawings of R2000 and later, by the names the folder gives them.
bool shouldBeRead(const std::string& path)
{
    return path.find("bad_r12_no_sections") == path.npos;
}

std::string refusal(const std::string& path)
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
}  // namespace

TEST(SharedDrawings, aDrawingSavedUnchangedIsTheSameByteForByte)
{
    const fs::path copy = fs::path(testing::TempDir()) / "round_trip.dxf";
    int count = 0;
    for (const std::string& path : drawings())
    {
        if (!shouldBeRead(path))
            continue;
        const TagFile file = TagFile::read(path);
        saveAtomically(copy.string(), Edits(file));
        EXPECT_EQ(bytesOf(copy), bytesOf(path)) << path;
        EXPECT_GT(file.records("ENTITIES").size(), 0u) << path;
        ++count;
    }
    fs::remove(copy);
    if (count == 0)
        GTEST_SKIP() << "no drawings in " << drawingsFolder();
    std::cout << count << " drawings saved unchanged\n";
}

TEST(SharedDrawings, theRecordsOfASectionFollowEachOtherWithoutGaps)
{
    int count = 0;
    for (const std::string& path : drawings())
    {
        if (!shouldBeRead(path))
            continue;
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
        GTEST_SKIP() << "no drawings in " << drawingsFolder();
}

TEST(SharedDrawings, brokenOnesAreRefusedInOneLine)
{
    int count = 0;
    for (const std::string& path : drawings())
    {
        if (shouldBeRead(path))
            continue;
        const std::string message = refusal(path);
        EXPECT_TRUE(message.starts_with(path + ": line ")) << path << " -> " << message;
        EXPECT_EQ(message.find('\n'), message.npos);
        ++count;
    }
    if (count == 0)
        GTEST_SKIP() << "no such drawings in " << drawingsFolder();
    std::cout << count << " drawings refused\n";
}
