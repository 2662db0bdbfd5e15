// Names that stand for something else than a file.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <utility>

#include "host/dxf/tagfile.h"

namespace host::dxf
{
TEST(TagFile, aPathThatIsNoFileIsRefused)
{
    const std::string pipe = testing::TempDir() + "pipe_" + std::to_string(::getpid());
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const std::pair<std::string, std::string> rows[] = {
        {pipe, "expected a file, found a device or pipe"},
        {testing::TempDir() + "not_there.dxf", "cannot be opened: No such file or directory"},
        {testing::TempDir(), "expected a file, found a directory"},
        {"/dev/null", "expected a file, found a device or pipe"},
    };
    for (const auto& [path, reason] : rows)
    {
        EXPECT_THAT([&file = path] { TagFile::read(file); },
                    testing::ThrowsMessage<Error>(path + ": " + reason));
    }
    ::unlink(pipe.c_str());
}
}  // namespace host::dxf
