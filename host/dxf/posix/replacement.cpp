#include "host/dxf/replacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <tuple>
#include <utility>

#include "host/dxf/savefailed.h"
#include "host/windows/emulated/rewrite.h"
#include "host/windows/emulated/unfinishedfile.h"

namespace host::dxf
{
namespace fs = std::filesystem;

// Makes a write beyond the process's limit for file sizes fail instead of ending the run.
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

// The new drawing until it takes the old one's place. It is deleted on every way out before that,
// even when a signal ends the program.
class TemporaryFile
{
public:
    TemporaryFile(const fs::path& folder, const std::string& nameInMessages);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void takeOwnerAndMode(const struct stat& old);
    void write(std::string_view bytes);
    void onDisk();  // waits until a power cut cannot destroy the file
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
    // Another run may be saving here or may have been interrupted while saving.
    for (int attempt = 0; attempt < 100 && m_file < 0; ++attempt)
    {
        m_path = folder / (".arxhost-" + std::to_string(::getpid()) + "-" +
                           std::to_string(attempt) + ".tmp");
        m_file = createUnfinishedFile(m_path, 0666);
        if (m_file < 0 && errno != EEXIST)
        {
            break;
        }
    }
    requireSaved(m_file >= 0, m_nameInMessages);
    m_exists = true;
}

TemporaryFile::~TemporaryFile()
{
    if (m_file >= 0)
    {
        ::close(m_file);
    }
    if (m_exists)
    {
        ::unlink(m_path.c_str());
        settleUnfinishedFile();
    }
}

void TemporaryFile::takeOwnerAndMode(const struct stat& old)
{
    // Only the administrator may give files away. For anyone else, the user who saves becomes the
    // owner.
    std::ignore = ::fchown(m_file, old.st_uid, old.st_gid);
    requireSaved(::fchmod(m_file, old.st_mode & 07777) == 0, m_nameInMessages);
}

void TemporaryFile::write(std::string_view bytes)
{
    requireSaved(writeFully(m_file, bytes), m_nameInMessages);
}

void TemporaryFile::onDisk()
{
    // Some disks report an error only when they are asked to store everything.
    requireSaved(::fsync(m_file) == 0, m_nameInMessages);
}

void TemporaryFile::takePlaceOf(const fs::path& target)
{
    requireSaved(::close(std::exchange(m_file, -1)) == 0, m_nameInMessages);
    requireSaved(::rename(m_path.c_str(), target.c_str()) == 0, m_nameInMessages);
    m_exists = false;
    settleUnfinishedFile();
}

namespace
{
// Stores the folder on the disk, so that the new name survives a power cut. A folder that cannot do
// this is not a failure: the drawing is saved.
void syncFolder(const fs::path& folder)
{
    const int file = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0)
    {
        return;
    }
    ::fsync(file);
    ::close(file);
}

// Returns the path without symbolic links. The file need not exist.
fs::path followed(const std::string& path)
{
    fs::path target = path;
    for (int links = 0; links < 40; ++links)
    {
        std::error_code isNoLink;
        const fs::path next = fs::read_symlink(target, isNoLink);
        if (isNoLink)
        {
            return target;
        }
        target = target.parent_path() / next;
    }
    errno = ELOOP;
    failSaving(path, std::strerror(errno));
}

// Returns the state of the old file, or nothing if there is none yet. Throws an Error if the user
// could not write to it.
std::optional<struct stat> oldFile(const fs::path& target, const std::string& path)
{
    struct stat old;
    if (::stat(target.c_str(), &old) != 0)
    {
        requireSaved(errno == ENOENT, path);
        return std::nullopt;
    }
    if (S_ISDIR(old.st_mode))
    {
        failSaving(path, "a directory has this name");
    }
    requireSaved(::access(target.c_str(), W_OK) == 0, path);
    return old;
}

fs::path folderOf(const fs::path& target)
{
    return target.has_parent_path() ? target.parent_path() : fs::path(".");
}
}  // namespace

class Replacement::Files
{
public:
    virtual ~Files() = default;
    virtual void write(std::string_view bytes) = 0;
    virtual void takePlace() = 0;
};

namespace
{
class NewAndOld : public Replacement::Files
{
public:
    explicit NewAndOld(const std::string& path)
        : m_path(path),
          m_target(followed(path)),
          m_old(oldFile(m_target, m_path)),
          m_new(folderOf(m_target), m_path)
    {
        if (m_old)
        {
            m_new.takeOwnerAndMode(*m_old);
        }
    }

    void write(std::string_view bytes) override { m_new.write(bytes); }
    void takePlace() override
    {
        if (m_old)
        {
            m_new.onDisk();
        }
        m_new.takePlaceOf(m_target);
        if (m_old)
        {
            syncFolder(folderOf(m_target));
        }
    }

private:
    const SizeLimitAsFailure m_sizeLimitAsFailure;
    const std::string m_path;
    const fs::path m_target;
    const std::optional<struct stat> m_old;
    TemporaryFile m_new;
};

bool isStandardOutput(const std::string& path)
{
    return path == "/dev/stdout";
}

bool isDeviceOrPipe(const std::string& path)
{
    struct stat status;
    return isStandardOutput(path) || (::stat(path.c_str(), &status) == 0 &&
                                      !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode));
}

// Opens a device or a pipe. Standard output continues at its current position, wherever it leads. A
// pipe without a reader is a failure; the call does not wait for one.
int openDeviceOrPipe(const std::string& path)
{
    if (isStandardOutput(path))
    {
        std::fflush(stdout);
        return ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    }
    const int file = ::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (file >= 0)
    {
        ::fcntl(file, F_SETFL, 0);
    }
    return file;
}

class DeviceOrPipe : public Replacement::Files
{
public:
    explicit DeviceOrPipe(const std::string& path) : m_path(path), m_file(openDeviceOrPipe(path))
    {
        if (m_file < 0 && errno == ENXIO)
        {
            failSaving(path, "nobody reads from the pipe");
        }
        requireSaved(m_file >= 0, path);
    }
    ~DeviceOrPipe() override
    {
        if (m_file >= 0)
        {
            ::close(m_file);
        }
    }

    void write(std::string_view bytes) override { requireSaved(writeFully(m_file, bytes), m_path); }
    void takePlace() override { requireSaved(::close(std::exchange(m_file, -1)) == 0, m_path); }

private:
    const std::string m_path;
    int m_file;
};

std::unique_ptr<Replacement::Files> filesFor(const std::string& path)
{
    if (isDeviceOrPipe(path))
    {
        return std::make_unique<DeviceOrPipe>(path);
    }
    return std::make_unique<NewAndOld>(path);
}
}  // namespace

void requireReplaceable(const std::string& path)
{
    if (isDeviceOrPipe(path))
    {
        return;
    }
    const fs::path target = followed(path);
    std::ignore = oldFile(target, path);
    requireSaved(::access(folderOf(target).c_str(), W_OK | X_OK) == 0, path);
}

Replacement::Replacement(const std::string& path) : m_files(filesFor(path)) {}

Replacement::~Replacement() = default;

void Replacement::write(std::string_view bytes)
{
    m_files->write(bytes);
}

void Replacement::takePlace()
{
    m_files->takePlace();
}
}  // namespace host::dxf
