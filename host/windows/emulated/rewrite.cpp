#include "host/windows/emulated/rewrite.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <tuple>

#include "host/windows/emulated/unfinishedfile.h"

namespace host
{
namespace
{
// Returns the path without links; empty for a file whose place no other file can take.
std::string pathToReplace(const struct stat& old, const std::string& path)
{
    if (!S_ISREG(old.st_mode) || old.st_nlink != 1)
    {
        return {};
    }
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                           &std::free);
    return real != nullptr ? real.get() : std::string();
}

bool fill(int file, const struct stat& old, std::string_view bytes)
{
    // Only the administrator may give files away. For anyone else, the user who writes becomes the
    // owner.
    std::ignore = ::fchown(file, old.st_uid, old.st_gid);
    const bool filled = ::fchmod(file, old.st_mode & 07777) == 0 && writeFully(file, bytes);
    return ::close(file) == 0 && filled;
}

bool rewriteInPlace(int file, std::string_view bytes)
{
    // A device cannot be truncated and need not be.
    return (::ftruncate(file, 0) == 0 || errno == EINVAL) && writeFully(file, bytes);
}
}  // namespace

bool writeFully(int file, std::string_view bytes)
{
    while (!bytes.empty())
    {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
        {
            return false;
        }
        bytes.remove_prefix(written > 0 ? std::size_t(written) : 0);
    }
    return true;
}

bool rewrite(int file, const std::string& path, std::string_view bytes)
{
    struct stat old;
    if (::fstat(file, &old) != 0)
    {
        return false;
    }
    const std::string target = pathToReplace(old, path);
    const std::string beside = target + ".arxhost-" + std::to_string(::getpid()) + ".tmp";
    const int replacement = target.empty() ? -1 : createUnfinishedFile(beside, 0600);
    if (replacement < 0)
    {
        // The contents of the file are to stay. A full or broken disk would take neither file, and
        // a run that a signal ends has no time to write either.
        const bool fails = !target.empty() &&
                           (errno == ENOSPC || errno == EDQUOT || errno == EIO || errno == EBUSY);
        return !fails && rewriteInPlace(file, bytes);
    }
    const bool done =
        fill(replacement, old, bytes) && ::rename(beside.c_str(), target.c_str()) == 0;
    const int error = errno;
    if (!done)
    {
        ::unlink(beside.c_str());
    }
    settleUnfinishedFile();
    errno = error;
    return done;
}
}  // namespace host
