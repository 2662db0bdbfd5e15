#include "tests/scarce/scarcity.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

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
char* noteOfRefused;

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

void note(const char* call, const char* path)
{
    if (noteOfRefused != nullptr)
    {
        std::snprintf(noteOfRefused, noteSize, "%s of %s", call, path);
    }
}

bool refuseOn(const char* path, const char* call)
{
    const bool refused = refuse(Of::files);
    const int error = errno;
    if (refused)
    {
        note(call, path);
    }
    errno = error;
    return refused;
}

bool refuseOn(int file, const char* call)
{
    if (!running || scarce == Of::memory)
    {
        return false;
    }
    char link[32];
    char path[noteSize - 32] = "";
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    const ssize_t length = readlink(link, path, sizeof path - 1);
    path[length > 0 ? length : 0] = 0;
    return refuseOn(path, call);
}

bool refuseWholeOn(auto pathOrFile, const char* call)
{
    return scarce != Of::fileLength && refuseOn(pathOrFile, call);
}

// The other libraries ask for memory too, and what they do without it is not ours to mend.
bool isOurs(const void* caller)
{
    Dl_info found;
    if (dladdr(caller, &found) == 0 || found.dli_fname == nullptr)
    {
        return false;
    }
    const char* const slash = std::strrchr(found.dli_fname, '/');
    const std::string_view file = slash != nullptr ? slash + 1 : found.dli_fname;
    return file == "netrax.arx" || file == "libarxhost_core.so" || file == "scarce_sweep";
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

void noteRefusedIn(char* note)
{
    noteOfRefused = note;
}
}  // namespace scarcity

using scarcity::refuse;
using scarcity::refuseOn;
using scarcity::refuseWholeOn;
using scarcity::scarce;

#define IN_PLACE extern "C" __attribute__((visibility("default")))

IN_PLACE int open(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    static auto* const next = original<int(const char*, int, ...)>("open");
    return refuseWholeOn(path, "open") ? -1 : next(path, flags, mode);
}

// What the C++ library opens its streams with; it reads and closes them by the calls below.
IN_PLACE FILE* fopen64(const char* path, const char* mode)
{
    static auto* const next = original<FILE*(const char*, const char*)>("fopen64");
    return refuseWholeOn(path, "fopen") ? nullptr : next(path, mode);
}

// Half of what was asked for, once, is no failure: whoever asked has to ask again.
IN_PLACE ssize_t write(int file, const void* bytes, std::size_t size)
{
    static auto* const next = original<ssize_t(int, const void*, std::size_t)>("write");
    if (!refuseOn(file, "write"))
    {
        return next(file, bytes, size);
    }
    return scarce == scarcity::Of::fileLength ? next(file, bytes, (size + 1) / 2) : -1;
}

IN_PLACE ssize_t read(int file, void* bytes, std::size_t size)
{
    static auto* const next = original<ssize_t(int, void*, std::size_t)>("read");
    if (!refuseOn(file, "read"))
    {
        return next(file, bytes, size);
    }
    return scarce == scarcity::Of::fileLength ? next(file, bytes, (size + 1) / 2) : -1;
}

// `on` is the path or the number of the file.
#define CALL_ON_FILES(NAME, PARAMETERS, ARGUMENTS, ON)             \
    IN_PLACE int NAME PARAMETERS                                   \
    {                                                              \
        static auto* const next = original<int PARAMETERS>(#NAME); \
        return refuseWholeOn(ON, #NAME) ? -1 : next ARGUMENTS;     \
    }

// No power cut comes here: to wait for the disk thousands of times would only take time.
IN_PLACE int fsync(int file)
{
    return refuseWholeOn(file, "fsync") ? -1 : 0;
}
CALL_ON_FILES(rename, (const char* from, const char* to) noexcept, (from, to), to)
CALL_ON_FILES(fchmod, (int file, mode_t mode) noexcept, (file, mode), file)
CALL_ON_FILES(ftruncate, (int file, off_t size) noexcept, (file, size), file)
CALL_ON_FILES(stat, (const char* path, struct stat* found) noexcept, (path, found), path)
CALL_ON_FILES(fstat, (int file, struct stat* found) noexcept, (file, found), file)

// A file is closed all the same when that is told to have failed.
IN_PLACE int close(int file)
{
    static auto* const next = original<int(int)>("close");
    const bool refused = refuseWholeOn(file, "close");
    const int error = errno;
    const int result = next(file);
    errno = refused ? error : errno;
    return refused ? -1 : result;
}

// What stands behind the library's own; going through these again would count twice.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_realloc(void* memory, std::size_t size);

static bool refuseMemoryOf(const void* caller)
{
    return scarcity::running && scarce == scarcity::Of::memory && scarcity::isOurs(caller) &&
           refuse(scarcity::Of::memory);
}

IN_PLACE void* malloc(std::size_t size) noexcept
{
    return refuseMemoryOf(__builtin_return_address(0)) ? nullptr : __libc_malloc(size);
}

IN_PLACE void* realloc(void* memory, std::size_t size) noexcept
{
    return refuseMemoryOf(__builtin_return_address(0)) ? nullptr : __libc_realloc(memory, size);
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
    void* const memory =
        refuse(scarcity::Of::memory) ? nullptr : __libc_malloc(size != 0 ? size : 1);
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
