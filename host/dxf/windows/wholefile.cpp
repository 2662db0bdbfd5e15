#include "host/dxf/wholefile.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <filesystem>

#include "host/windows/text.h"

namespace host::dxf
{
namespace
{
struct Descriptor
{
    ~Descriptor() { ::_close(number); }
    int number;
};

// Reads up to `size` bytes; fewer if the file ends earlier.
std::size_t readFully(const Descriptor& file, char* bytes, std::size_t size,
                      const std::string& path)
{
    std::size_t done = 0;
    while (done < size)
    {
        const auto count = unsigned(std::min<std::size_t>(size - done, INT_MAX));
        const int got = ::_read(file.number, bytes + done, count);
        if (got < 0)
        {
            fail(path, std::string("cannot be read: ") + std::strerror(errno));
        }
        if (got == 0)
        {
            break;
        }
        done += got;
    }
    return done;
}
}  // namespace

WholeFile readWholeFile(const std::string& path)
{
    const std::filesystem::path name = pathOf(path);
    if (std::error_code error; std::filesystem::is_directory(name, error))
    {
        fail(path, "expected a file, found a directory");
    }
    const Descriptor file{::_wopen(name.c_str(), _O_RDONLY | _O_BINARY)};
    struct _stat64 status;
    if (file.number < 0 || ::_fstat64(file.number, &status) != 0)
    {
        fail(path, std::string("cannot be opened: ") + std::strerror(errno));
    }
    if ((status.st_mode & _S_IFREG) == 0)
    {
        fail(path, "expected a file, found a device or pipe");
    }

    auto bytes = std::make_unique_for_overwrite<char[]>(status.st_size + 1);
    const std::size_t size = readFully(file, bytes.get(), status.st_size, path);
    return {std::move(bytes), size};
}
}  // namespace host::dxf
