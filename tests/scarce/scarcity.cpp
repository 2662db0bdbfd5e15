#include "tests/scarce/scarcity.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <new>

#include "tests/app/original.h"

namespace scarcity
{
namespace
{
bool running = false;
Of scarce;
long left;
long begun;
bool always;
int reason;
bool refusedOne;

// Whether this request is to be refused.
bool refuse(Of what)
{
    const bool counts =
        running && (scarce == what || (what == Of::files && scarce == Of::fileLength));
    if (!counts || (--left > 0) || (left < 0 && !always))
    {
        return false;
    }
    refusedOne = true;
    errno = reason;
    return true;
}
}  // namespace

void start(Of what, long first, bool forGood, int error)
{
    scarce = what;
    left = first;
    begun = first;
    always = forGood;
    reason = error;
    refusedOne = false;
    running = true;
}

bool stop()
{
    running = false;
    return refusedOne;
}

long requests()
{
    return begun - left;
}
}  // namespace scarcity

using scarcity::refuse;
using scarcity::scarce;

#define IN_PLACE extern "C" __attribute__((visibility("default")))

IN_PLACE int open(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    static auto* const next = original<int(const char*, int, ...)>("open");
    return scarce != scarcity::Of::fileLength && refuse(scarcity::Of::files)
               ? -1
               : next(path, flags, mode);
}

// Half of what was asked for, once, is no failure: whoever asked has to ask again.
IN_PLACE ssize_t write(int file, const void* bytes, std::size_t size)
{
    static auto* const next = original<ssize_t(int, const void*, std::size_t)>("write");
    if (!refuse(scarcity::Of::files))
    {
        return next(file, bytes, size);
    }
    return scarce == scarcity::Of::fileLength ? next(file, bytes, (size + 1) / 2) : -1;
}

IN_PLACE ssize_t read(int file, void* bytes, std::size_t size)
{
    static auto* const next = original<ssize_t(int, void*, std::size_t)>("read");
    if (!refuse(scarcity::Of::files))
    {
        return next(file, bytes, size);
    }
    return scarce == scarcity::Of::fileLength ? next(file, bytes, (size + 1) / 2) : -1;
}

#define CALL_ON_FILES(NAME, PARAMETERS, ARGUMENTS)                         \
    IN_PLACE int NAME PARAMETERS                                           \
    {                                                                      \
        static auto* const next = original<int PARAMETERS>(#NAME);         \
        const bool whole = scarce != scarcity::Of::fileLength;             \
        return whole && refuse(scarcity::Of::files) ? -1 : next ARGUMENTS; \
    }

// No power cut comes here: to wait for the disk thousands of times would only take time.
IN_PLACE int fsync(int)
{
    return scarce != scarcity::Of::fileLength && refuse(scarcity::Of::files) ? -1 : 0;
}
CALL_ON_FILES(rename, (const char* from, const char* to) noexcept, (from, to))
CALL_ON_FILES(fchmod, (int file, mode_t mode) noexcept, (file, mode))
CALL_ON_FILES(stat, (const char* path, struct stat* found) noexcept, (path, found))
CALL_ON_FILES(fstat, (int file, struct stat* found) noexcept, (file, found))

// A file is closed all the same when that is told to have failed.
IN_PLACE int close(int file)
{
    static auto* const next = original<int(int)>("close");
    const bool refused = scarce != scarcity::Of::fileLength && refuse(scarcity::Of::files);
    const int error = errno;
    const int result = next(file);
    errno = refused ? error : errno;
    return refused ? -1 : result;
}

namespace
{
// As the library's own: whoever stands ready for it comes first.
[[noreturn]] void giveUp()
{
    if (const std::new_handler handler = std::get_new_handler())
    {
        handler();
    }
    throw std::bad_alloc();
}

void* allocate(std::size_t size)
{
    void* const memory = refuse(scarcity::Of::memory) ? nullptr : std::malloc(size != 0 ? size : 1);
    if (memory == nullptr)
    {
        giveUp();
    }
    return memory;
}
}  // namespace

#define EXPORTED __attribute__((visibility("default")))

EXPORTED void* operator new(std::size_t size)
{
    return allocate(size);
}
EXPORTED void* operator new[](std::size_t size)
{
    return allocate(size);
}
EXPORTED void* operator new(std::size_t size, std::align_val_t alignment)
{
    void* memory = nullptr;
    if (refuse(scarcity::Of::memory) || posix_memalign(&memory, std::size_t(alignment), size) != 0)
    {
        giveUp();
    }
    return memory;
}
EXPORTED void operator delete(void* memory) noexcept
{
    std::free(memory);
}
EXPORTED void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
EXPORTED void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
EXPORTED void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
EXPORTED void operator delete(void* memory, std::align_val_t) noexcept
{
    std::free(memory);
}
EXPORTED void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    std::free(memory);
}
