#include "host/dxf/save_atomic.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <optional>
#include <tuple>
#include <utility>

#include "host/dxf/binaryform.h"

namespace host::dxf
{
namespace
{
namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& path, const std::string& why)
{
    throw Error(path + ": cannot be saved: " + why);
}

// With the reason the last call has left.
void require(bool done, const std::string& path)
{
    if (!done)
        fail(path, std::strerror(errno));
}

// Beyond the process's limit for file sizes a write is to fail instead of ending the run.
class SizeLimitAsFailure
{
public:
    SizeLimitAsFailure() : m_before(std::signal(SIGXFSZ, SIG_IGN)) {}
    ~SizeLimitAsFailure() { std::signal(SIGXFSZ, m_before); }
    SizeLimitAsFailure(const SizeLimitAsFailure&) = delete;
    SizeLimitAsFailure& operator=(const SizeLimitAsFailure&) = delete;

private:
    void (*m_before)(int);
};

// The new drawing until it takes the old one's place; gone on every way out before that.
class TemporaryFile
{
public:
    TemporaryFile(const fs::path& folder, const std::string& nameInMessages);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void takeOwnerAndMode(const struct stat& old);
    void write(std::string_view bytes);
    void onDisk();  // waits until a power cut cannot take it
    void takePlaceOf(const fs::path& target);

private:
    const std::string& m_nameInMessages;
    fs::path m_path;
    int m_file = -1;
    bool m_exists = false;
};

TemporaryFile::TemporaryFile(const fs::path& folder, const std::string& nameInMessages)
    : m_nameInMessages(nameInMessages)
{
    // Another run may be saving here, or may have ended in the middle of it.
    for (int attempt = 0; attempt < 100 && m_file < 0; ++attempt)
    {
        m_path = folder / (".arxhost-" + std::to_string(::getpid()) + "-" +
                           std::to_string(attempt) + ".tmp");
        m_file = ::open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (m_file < 0 && errno != EEXIST)
            break;
    }
    require(m_file >= 0, m_nameInMessages);
    m_exists = true;
}

TemporaryFile::~TemporaryFile()
{
    if (m_file >= 0)
        ::close(m_file);
    if (m_exists)
        ::unlink(m_path.c_str());
}

void TemporaryFile::takeOwnerAndMode(const struct stat& old)
{
    // Only the administrator may give files away; for anyone else the new owner is who saves.
    std::ignore = ::fchown(m_file, old.st_uid, old.st_gid);
    require(::fchmod(m_file, old.st_mode & 07777) == 0, m_nameInMessages);
}

void TemporaryFile::write(std::string_view bytes)
{
    while (!bytes.empty())
    {
        const ssize_t written = ::write(m_file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        require(written >= 0, m_nameInMessages);
        bytes.remove_prefix(written);
    }
}

void TemporaryFile::onDisk()
{
    // Some disks only tell when they are asked to have it all.
    require(::fsync(m_file) == 0, m_nameInMessages);
}

void TemporaryFile::takePlaceOf(const fs::path& target)
{
    require(::close(std::exchange(m_file, -1)) == 0, m_nameInMessages);
    require(::rename(m_path.c_str(), target.c_str()) == 0, m_nameInMessages);
    m_exists = false;
}

// So that the new name outlives a power cut. A folder that cannot do this is no reason to report a
// failure: the drawing is saved.
void syncFolder(const fs::path& folder)
{
    const int file = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0)
        return;
    ::fsync(file);
    ::close(file);
}

// The file that `path` names in the end; it need not exist.
fs::path followed(const std::string& path)
{
    fs::path target = path;
    for (int links = 0; links < 40; ++links)
    {
        std::error_code isNoLink;
        const fs::path next = fs::read_symlink(target, isNoLink);
        if (isNoLink)
            return target;
        target = target.parent_path() / next;
    }
    errno = ELOOP;
    fail(path, std::strerror(errno));
}

// The old file, if there is one; it must be one that the user could write to.
std::optional<struct stat> oldFile(const fs::path& target, const std::string& path)
{
    struct stat old;
    if (::stat(target.c_str(), &old) != 0)
    {
        require(errno == ENOENT, path);
        return std::nullopt;
    }
    if (S_ISDIR(old.st_mode))
        fail(path, "a directory has this name");
    if (!S_ISREG(old.st_mode))
        fail(path, "a device or pipe has this name");
    require(::access(target.c_str(), W_OK) == 0, path);
    return old;
}

fs::path folderOf(const fs::path& target)
{
    return target.has_parent_path() ? target.parent_path() : fs::path(".");
}

void writeBinary(const TagStyle& style, const Producer& produce, const TagWriter::Drain& drain)
{
    BinaryEncoder encoder(drain, style.binaryCodeSize);
    TagWriter writer([&](std::string_view ascii) { encoder.take(ascii); }, style);
    produce(writer);
    writer.flush();
    encoder.finish();
}
}  // namespace

void writeTags(const TagStyle& style, const Producer& produce, const TagWriter::Drain& drain)
{
    if (style.binaryCodeSize != 0)
        return writeBinary(style, produce, drain);
    TagWriter writer(drain, style);
    produce(writer);
    writer.flush();
}

void saveAtomically(const std::string& path, const TagStyle& style, const Producer& produce)
try
{
    const SizeLimitAsFailure sizeLimitAsFailure;
    const fs::path target = followed(path);
    const auto old = oldFile(target, path);
    TemporaryFile file(folderOf(target), path);

    // Before there is anything to read: a private drawing stays private.
    if (old)
        file.takeOwnerAndMode(*old);
    writeTags(style, produce, [&](std::string_view bytes) { file.write(bytes); });
    // An old drawing is given up only for one that is safe; a new name puts nothing at risk.
    if (old)
        file.onDisk();
    file.takePlaceOf(target);
    if (old)
        syncFolder(folderOf(target));
}
catch (const std::domain_error& noTagCanHoldIt)
{
    fail(path, noTagCanHoldIt.what());
}

void saveAtomically(const std::string& path, const Edits& edits)
{
    saveAtomically(path, edits.file().style(), [&](TagWriter& writer) { edits.write(writer); });
}
}  // namespace host::dxf
