#include "tests/exhaustion/scarcity.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <sys/stat.h>
#include <sys/syscall.h>
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
Refused* noteOfRefused;

// Tells whether to refuse this request: one for memory, one for space on the disk, or another call
// on files.
bool refuse(Of what)
{
    const bool ofFiles = scarce == Of::files || scarce == Of::fileLength;
    if (!running || (scarce != what && !(ofFiles && what != Of::memory)) || (--left > 0) ||
        (left < 0 && !always))
    {
        return false;
    }
    refusedOne = true;
    errno = reason;
    return true;
}

// Tells whether our own code makes the request. Other libraries make requests, too, and we cannot
// repair what they do without memory or a file. The C++ library opens, reads and renames files only
// for us.
bool isOurs(const void* caller)
{
    dl_find_object found;
    if (_dl_find_object(const_cast<void*>(caller), &found) != 0)
    {
        return false;
    }
    const std::string_view path = found.dlfo_link_map->l_name;  // the path is empty for the program
    const std::string_view file = path.substr(path.rfind('/') + 1);
    return file == "netrax.arx" || file.starts_with("libarxhost_") || file.empty() ||
           (scarce != Of::memory && file.starts_with("libstdc++.so"));
}

void note(const char* call, const char* path)
{
    if (noteOfRefused != nullptr)
    {
        std::snprintf(noteOfRefused->last, sizeof noteOfRefused->last, "%s of %s", call, path);
        noteOfRefused->deletion |= std::strcmp(call, "unlink") == 0;
    }
}

bool refuseOn(const char* path, const char* call, const void* caller, Of what = Of::files)
{
    const bool refused = running && isOurs(caller) && refuse(what);
    const int error = errno;
    if (refused)
    {
        note(call, path);
    }
    errno = error;
    return refused;
}

bool refuseOn(int file, const char* call, const void* caller, Of what = Of::files)
{
    if (!running || scarce == Of::memory || !isOurs(caller))
    {
        return false;
    }
    char link[32];
    char path[200] = "";
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    syscall(SYS_readlink, link, path,
            sizeof path - 1);  // a system call, because readlink is replaced below
    return refuseOn(path, call, caller, what);
}

bool refuseWholeOn(auto pathOrFile, const char* call, const void* caller, Of what = Of::files)
{
    return scarce != Of::fileLength && refuseOn(pathOrFile, call, caller, what);
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

void noteRefusedIn(Refused* note)
{
    noteOfRefused = note;
}
}  // namespace scarcity

using scarcity::refuse;
using scarcity::refuseOn;
using scarcity::refuseWholeOn;
using scarcity::scarce;

#define IN_PLACE extern "C" __attribute__((visibility("default")))
#define CALLER __builtin_return_address(0)

IN_PLACE int open(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    static auto* const next = original<int(const char*, int, ...)>("open");
    const auto what = (flags & O_CREAT) != 0 ? scarcity::Of::space : scarcity::Of::files;
    return refuseWholeOn(path, "open", CALLER, what) ? -1 : next(path, flags, mode);
}

// The C++ library opens its streams with fopen64; it reads and closes them by the calls below.
#define CALL_THAT_OPENS(NAME)                                                       \
    IN_PLACE FILE* NAME(const char* path, const char* mode)                         \
    {                                                                               \
        static auto* const next = original<FILE*(const char*, const char*)>(#NAME); \
        return refuseWholeOn(path, #NAME, CALLER) ? nullptr : next(path, mode);     \
    }
CALL_THAT_OPENS(fopen)
CALL_THAT_OPENS(fopen64)

// Writes half of the bytes once. This is not a failure: the caller must write the rest.
IN_PLACE ssize_t write(int file, const void* bytes, std::size_t size)
{
    static auto* const next = original<ssize_t(int, const void*, std::size_t)>("write");
    if (!refuseOn(file, "write", CALLER, scarcity::Of::space))
    {
        return next(file, bytes, size);
    }
    return scarce == scarcity::Of::fileLength ? next(file, bytes, (size + 1) / 2) : -1;
}

IN_PLACE ssize_t read(int file, void* bytes, std::size_t size)
{
    static auto* const next = original<ssize_t(int, void*, std::size_t)>("read");
    if (!refuseOn(file, "read", CALLER))
    {
        return next(file, bytes, size);
    }
    return scarce == scarcity::Of::fileLength ? next(file, bytes, (size + 1) / 2) : -1;
}

// Defines a call on files. `on` is the path or the number of the file.
#define CALL_ON_FILES(NAME, PARAMETERS, ARGUMENTS, ON)                 \
    IN_PLACE int NAME PARAMETERS                                       \
    {                                                                  \
        static auto* const next = original<int PARAMETERS>(#NAME);     \
        return refuseWholeOn(ON, #NAME, CALLER) ? -1 : next ARGUMENTS; \
    }

// The test has no power failure, so waiting for the disk thousands of times would only cost time.
IN_PLACE int fsync(int file)
{
    return refuseWholeOn(file, "fsync", CALLER) ? -1 : 0;
}
CALL_ON_FILES(rename, (const char* from, const char* to) noexcept, (from, to), to)
CALL_ON_FILES(fchmod, (int file, mode_t mode) noexcept, (file, mode), file)
CALL_ON_FILES(ftruncate, (int file, off_t size) noexcept, (file, size), file)
CALL_ON_FILES(unlink, (const char* path) noexcept, (path), path)
CALL_ON_FILES(access, (const char* path, int mode) noexcept, (path, mode), path)
CALL_ON_FILES(fchown, (int file, uid_t owner, gid_t group) noexcept, (file, owner, group), file)
CALL_ON_FILES(stat, (const char* path, struct stat* found) noexcept, (path, found), path)
CALL_ON_FILES(fstat, (int file, struct stat* found) noexcept, (file, found), file)

IN_PLACE ssize_t readlink(const char* path, char* target, std::size_t size) noexcept
{
    static auto* const next = original<ssize_t(const char*, char*, std::size_t)>("readlink");
    return refuseWholeOn(path, "readlink", CALLER) ? -1 : next(path, target, size);
}

IN_PLACE char* realpath(const char* path, char* resolved) noexcept
{
    static auto* const next = original<char*(const char*, char*)>("realpath");
    return refuseWholeOn(path, "realpath", CALLER) ? nullptr : next(path, resolved);
}

// Closes the file even when the call reports a failure.
IN_PLACE int close(int file)
{
    static auto* const next = original<int(int)>("close");
    const bool refused = refuseWholeOn(file, "close", CALLER);
    const int error = errno;
    const int result = next(file);
    errno = refused ? error : errno;
    return refused ? -1 : result;
}

// The functions behind the library's own. Calling the functions of this file again would count a
// request twice.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_realloc(void* memory, std::size_t size);

static bool refuseMemoryOf(const void* caller)
{
    return scarcity::running && scarce == scarcity::Of::memory && scarcity::isOurs(caller) &&
           refuse(scarcity::Of::memory);
}

IN_PLACE void* malloc(std::size_t size) noexcept
{
    return refuseMemoryOf(CALLER) ? nullptr : __libc_malloc(size);
}

IN_PLACE void* realloc(void* memory, std::size_t size) noexcept
{
    return refuseMemoryOf(CALLER) ? nullptr : __libc_realloc(memory, size);
}

namespace
{
// Does what the library's own function does: a handler that is installed comes first.
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
