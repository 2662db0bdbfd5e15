#include "host/dxf/wholefile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace host::dxf
{
namespace
{
struct Descriptor
{
    ~Descriptor() { ::close(number); }
    int number;
};

// Reads up to `size` bytes; fewer if the file ends earlier.
std::size_t readFully(const Descriptor& file, char* bytes, std::size_t size,
                      const std::string& path)
{
    std::size_t done = 0;
    while (done < size)
    {
        const ssize_t got = ::read(file.number, bytes + done, size - done);
        if (got == 0)
        {
            break;
        }
        if (got > 0)
        {
            done += got;
        }
        else if (errno != EINTR)
        {
            fail(path, std::string("cannot be read: ") + std::strerror(errno));
        }
    }
    return done;
}
}  // namespace

WholeFile readWholeFile(const std::string& path)
{
    const Descriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
    struct stat status;
    if (file.number < 0 || ::fstat(file.number, &status) != 0)
    {
        fail(path, std::string("cannot be opened: ") + std::strerror(errno));
    }
    if (S_ISDIR(status.st_mode))
    {
        fail(path, "expected a file, found a directory");
    }
    if (!S_ISREG(status.st_mode))
    {
        fail(path, "expected a file, found a device or pipe");
    }

    auto bytes = std::make_unique_for_overwrite<char[]>(status.st_size + 1);
    const std::size_t size = readFully(file, bytes.get(), status.st_size, path);
    return {std::move(bytes), size};
}
}  // namespace host::dxf
