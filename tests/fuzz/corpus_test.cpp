#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/fuzz/dxfproperties.h"

namespace
{
namespace fs = std::filesystem;

TEST(DamagedDrawings, ofTheCorpusAreReadAndSavedOrRefused)
{
    int count = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(TESTS_DIR) / "fuzz" / "corpus"))
    {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes(std::istreambuf_iterator<char>(file), {});
        EXPECT_EQ(tests::complaintAbout(bytes), "") << entry.path();
        ++count;
    }
    EXPECT_GT(count, 20);
}
}  // namespace
