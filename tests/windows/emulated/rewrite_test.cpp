#include "host/windows/emulated/rewrite.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

namespace
{
namespace fs = std::filesystem;

// While it stands no file grows beyond so many bytes.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit = {bytes, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_handler);
    }
    SizeLimit(const SizeLimit&) = delete;
    SizeLimit& operator=(const SizeLimit&) = delete;

private:
    void (*m_handler)(int);
    rlimit m_former = {};
};

class Rewriting : public testing::Test
{
protected:
    Rewriting()
    {
        fs::create_directory(m_folder);
        std::ofstream(m_file) << "before";
        fs::permissions(m_file, fs::perms(0640));
    }
    ~Rewriting() override { fs::remove_all(m_folder); }

    static std::string contents(const fs::path& path)
    {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static bool rewritten(const fs::path& path, std::string_view bytes)
    {
        const int file = open(path.c_str(), O_WRONLY);
        const bool done = host::rewrite(file, path, bytes);
        const int error = errno;
        close(file);
        errno = error;
        return done;
    }
    std::ptrdiff_t files() const { return std::distance(fs::directory_iterator(m_folder), {}); }
    ino_t number() const
    {
        struct stat found = {};
        stat(m_file.c_str(), &found);
        return found.st_ino;
    }

    fs::path m_folder = fs::path(testing::TempDir()) / ("rewrite." + std::to_string(getpid()));
    fs::path m_file = m_folder / "file";
    fs::path m_other = m_folder / "other";
};

TEST_F(Rewriting, keepsTheModeAndLeavesNothingBeside)
{
    const ino_t old = number();
    EXPECT_TRUE(rewritten(m_file, "after"));
    EXPECT_EQ(contents(m_file), "after");
    EXPECT_EQ(fs::status(m_file).permissions(), fs::perms(0640));
    EXPECT_NE(number(), old) << "it was not exchanged in one step";
    EXPECT_EQ(files(), 1);
}

TEST_F(Rewriting, thatFindsNoRoomLeavesTheFileAsItWas)
{
    {
        const SizeLimit limit(10);
        EXPECT_FALSE(rewritten(m_file, "more than there is room for"));
        EXPECT_EQ(errno, EFBIG);
    }
    EXPECT_EQ(contents(m_file), "before");
    EXPECT_EQ(files(), 1);
}

TEST_F(Rewriting, followsALink)
{
    fs::create_symlink("file", m_other);
    EXPECT_TRUE(rewritten(m_other, "after"));
    EXPECT_EQ(contents(m_file), "after");
    EXPECT_TRUE(fs::is_symlink(m_other));
}

TEST_F(Rewriting, isSeenUnderEveryNameOfTheFile)
{
    fs::create_hard_link(m_file, m_other);
    EXPECT_TRUE(rewritten(m_other, "later"));
    EXPECT_EQ(contents(m_file), "later");
    EXPECT_TRUE(rewritten(m_other, "short"));
    EXPECT_EQ(contents(m_file), "short");
}

// Another run may have left its file there.
TEST_F(Rewriting, needsNoSecondFile)
{
    const fs::path beside = m_file.string() + ".arxhost-" + std::to_string(getpid()) + ".tmp";
    std::ofstream(beside) << "another's";
    EXPECT_TRUE(rewritten(m_file, "now"));
    EXPECT_EQ(contents(m_file), "now");
    EXPECT_EQ(contents(beside), "another's");
}
}  // namespace
