#include "host/dxf/atomicsave.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "host/dxf/replacement.h"
#include "tests/dxf/smalldrawing.h"

using namespace host::dxf;
namespace fs = std::filesystem;

namespace
{
class SaveAtomically : public testing::Test
{
protected:
    SaveAtomically()
    {
        std::string name = testing::TempDir() + "save_XXXXXX";
        m_folder = ::mkdtemp(name.data());
        m_drawing = m_folder / "drawing.dxf";
        std::ofstream(m_drawing, std::ios::binary) << m_old;
    }
    ~SaveAtomically() override { fs::remove_all(m_folder); }

    static std::string bytesOf(const fs::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    // Returns the error without the path, or an empty text if the save succeeded.
    static std::string save(const fs::path& path, const std::string& text)
    {
        return save(path, [&](TagWriter& w) { w.raw(text); });
    }
    static std::string save(const fs::path& path, const Producer& produce)
    {
        try
        {
            saveAtomically(path, {}, produce);
            return "";
        }
        catch (const Error& error)
        {
            const std::string before = path.string() + ": cannot be saved: ";
            EXPECT_TRUE(std::string(error.what()).starts_with(before)) << error.what();
            return std::string(error.what()).substr(before.size());
        }
    }

    // The administrator may write everywhere, so the tests of permissions are somebody else's.
    class AsNobody
    {
    public:
        explicit AsNobody(const fs::path& folder) : m_change(::geteuid() == 0)
        {
            if (!m_change)
            {
                return;
            }
            for (const fs::path& path : {folder, folder / "drawing.dxf"})
            {
                EXPECT_EQ(::chown(path.c_str(), nobody, nobody), 0);
            }
            EXPECT_EQ(::setresuid(nobody, nobody, 0), 0);
        }
        ~AsNobody() { EXPECT_TRUE(!m_change || ::setresuid(0, 0, 0) == 0); }
        AsNobody(const AsNobody&) = delete;
        AsNobody& operator=(const AsNobody&) = delete;

    private:
        static constexpr uid_t nobody = 65534;
        const bool m_change;
    };

    std::size_t filesInFolder() const
    {
        return std::distance(fs::directory_iterator(m_folder), fs::directory_iterator());
    }

    const std::string m_old = "the old drawing";
    fs::path m_folder;
    fs::path m_drawing;
};
}  // namespace

TEST_F(SaveAtomically, aNewFileGetsTheUsualModeOfNewFiles)
{
    const mode_t before = ::umask(027);
    EXPECT_EQ(save(m_folder / "new.dxf", "new"), "");
    ::umask(before);
    EXPECT_EQ(bytesOf(m_folder / "new.dxf"), "new");
    EXPECT_EQ(fs::status(m_folder / "new.dxf").permissions(), fs::perms(0640));
    EXPECT_EQ(filesInFolder(), 2u);
}

TEST_F(SaveAtomically, anOldFileIsReplacedAndItsModeKept)
{
    fs::permissions(m_drawing, fs::perms(0604));
    EXPECT_EQ(save(m_drawing, "new"), "");
    EXPECT_EQ(bytesOf(m_drawing), "new");
    EXPECT_EQ(fs::status(m_drawing).permissions(), fs::perms(0604));
    EXPECT_EQ(filesInFolder(), 1u);
}

TEST_F(SaveAtomically, aDrawingMayBeSavedOverItself)
{
    std::ofstream(m_drawing, std::ios::binary) << drawingWith("0\nLINE\n8\nWalls\n");
    const TagFile file = TagFile::read(m_drawing);
    Edits edits(file);
    edits.setValue(*++file.tags(file.records()[0]).begin(), "Doors");
    saveAtomically(m_drawing, edits);
    EXPECT_EQ(bytesOf(m_drawing), drawingWith("0\nLINE\n8\nDoors\n"));
}

TEST_F(SaveAtomically, aLinkStaysALinkAndItsTargetIsSaved)
{
    fs::create_directory(m_folder / "links");
    fs::create_symlink("../drawing.dxf", m_folder / "links" / "near.dxf");
    fs::create_symlink(m_folder / "links" / "near.dxf", m_folder / "far.dxf");
    EXPECT_EQ(save(m_folder / "far.dxf", "new"), "");
    EXPECT_TRUE(fs::is_symlink(m_folder / "far.dxf"));
    EXPECT_TRUE(fs::is_symlink(m_folder / "links" / "near.dxf"));
    EXPECT_FALSE(fs::is_symlink(m_drawing));
    EXPECT_EQ(bytesOf(m_drawing), "new");
}

TEST_F(SaveAtomically, aLinkToNothingMakesItsTarget)
{
    fs::create_symlink("new.dxf", m_folder / "link.dxf");
    EXPECT_EQ(save(m_folder / "link.dxf", "new"), "");
    EXPECT_TRUE(fs::is_symlink(m_folder / "link.dxf"));
    EXPECT_EQ(bytesOf(m_folder / "new.dxf"), "new");
}

TEST_F(SaveAtomically, whereNothingCanBeSavedTheReasonIsGiven)
{
    fs::create_directory(m_folder / "folder");
    fs::create_symlink("loop.dxf", m_folder / "loop.dxf");
    ASSERT_EQ(::mkfifo((m_folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(save(m_folder / "folder", "new"), "a directory has this name");
    EXPECT_EQ(save(m_folder / "pipe", "new"), "nobody reads from the pipe");
    EXPECT_EQ(save("/dev/full", "new"), "No space left on device");
    EXPECT_EQ(save(m_folder / "loop.dxf", "new"), "Too many levels of symbolic links");
    EXPECT_EQ(save(m_folder / "nowhere" / "a.dxf", "new"), "No such file or directory");
    EXPECT_EQ(save(m_drawing / "a.dxf", "new"), "Not a directory");
    EXPECT_EQ(filesInFolder(), 4u);
}

TEST_F(SaveAtomically, aDeviceOrPipeTakesTheBytesAsTheyCome)
{
    const fs::path pipe = m_folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const int reader = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ(save(pipe, "new"), "");
    char bytes[8];
    EXPECT_EQ(::read(reader, bytes, sizeof bytes), 3);
    ::close(reader);
    EXPECT_EQ(save("/dev/null", "new"), "");
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(filesInFolder(), 2u);
}

TEST_F(SaveAtomically, aNameThatWillNotDoIsKnownBeforeAnythingIsWritten)
{
    fs::create_directory(m_folder / "folder");
    const std::pair<fs::path, const char*> rows[] = {
        {m_folder / "folder", "a directory has this name"},
        {m_folder / "nowhere" / "a", "No such file or directory"},
        {m_drawing / "a.dxf", "Not a directory"},
    };
    for (const auto& [path, why] : rows)
    {
        try
        {
            requireReplaceable(path);
            ADD_FAILURE() << path;
        }
        catch (const Error& error)
        {
            EXPECT_EQ(error.what(), path.string() + ": cannot be saved: " + why);
        }
    }
    for (const fs::path& path : {m_drawing, m_folder / "new.dxf", fs::path("/dev/null")})
    {
        EXPECT_NO_THROW(requireReplaceable(path)) << path;
    }
    EXPECT_EQ(filesInFolder(), 2u);
}

// The limit stands for a full disk: the write takes what fits and fails the next time.
TEST_F(SaveAtomically, whenTheDiskIsFullTheOldFileIsWhole)
{
    rlimit before;
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{300000, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const std::string tooMuch = save(m_drawing, std::string(400000, 'x'));
    const std::string fits = save(m_folder / "fits.dxf", std::string(300000, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &before);

    EXPECT_EQ(tooMuch, "File too large");
    EXPECT_EQ(fits, "");
    EXPECT_EQ(bytesOf(m_drawing), m_old);
    EXPECT_EQ(filesInFolder(), 2u);
    EXPECT_EQ(std::signal(SIGXFSZ, SIG_DFL), SIG_DFL);
}

TEST_F(SaveAtomically, whenAPartCannotBeMadeTheOldFileIsWhole)
{
    const auto stops = [](TagWriter& w)
    {
        w.raw(std::string(5 << 20, 'x'));
        throw std::logic_error("stopped");
    };
    EXPECT_THROW(save(m_drawing, stops), std::logic_error);
    EXPECT_EQ(save(m_drawing, [](TagWriter& w) { w.real(Code(10), std::nan("")); }),
              "a number is not finite");
    EXPECT_EQ(bytesOf(m_drawing), m_old);
    EXPECT_EQ(filesInFolder(), 1u);
}

TEST_F(SaveAtomically, whatAnotherRunLeftBehindIsNotInTheWay)
{
    const fs::path left = m_folder / (".arxhost-" + std::to_string(::getpid()) + "-0.tmp");
    std::ofstream(left) << "half a drawing";
    EXPECT_EQ(save(m_drawing, "new"), "");
    EXPECT_EQ(bytesOf(m_drawing), "new");
    EXPECT_EQ(bytesOf(left), "half a drawing");
}

TEST_F(SaveAtomically, withoutPermissionNothingIsSaved)
{
    const AsNobody asNobody(m_folder);
    fs::permissions(m_drawing, fs::perms(0444));
    EXPECT_EQ(save(m_drawing, "new"), "Permission denied");
    fs::permissions(m_folder, fs::perms(0555));
    EXPECT_EQ(save(m_folder / "new.dxf", "new"), "Permission denied");
    fs::permissions(m_folder, fs::perms(0755));
    EXPECT_EQ(bytesOf(m_drawing), m_old);
    EXPECT_EQ(filesInFolder(), 1u);
}
