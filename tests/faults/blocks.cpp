#include "tests/faults/blocks.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <iterator>
#include <new>

#include "tests/faults/faults.h"
#include "tests/support/sanitized.h"

#ifdef WATCHED_FOR_ADDRESSES
namespace faults
{
const bool blocksAreNoted = false;
void noteBlocks() {}
std::vector<Leak> leaks()
{
    return {};
}
}  // namespace faults
#else
namespace faults
{
const bool blocksAreNoted = true;

namespace
{
struct Block
{
    const void* at;  // null in a free place
    std::size_t size;
    int call;
};

// A block is stored in the first free place from the one of its address on. A request for memory
// here would call this code again.
Block blocks[1 << 14];
std::size_t count = 0;
bool noting = false;

std::size_t next(std::size_t place)
{
    return (place + 1) % std::size(blocks);
}

std::size_t placeOf(const void* at)
{
    return (reinterpret_cast<std::uintptr_t>(at) >> 4) % std::size(blocks);
}

std::size_t find(const void* at)
{
    std::size_t place = placeOf(at);
    while (blocks[place].at != nullptr && blocks[place].at != at)
    {
        place = next(place);
    }
    return place;
}

void note(const void* at, std::size_t size)
{
    if (!noting || at == nullptr)
    {
        return;
    }
    if (++count > std::size(blocks) / 2)
    {
        std::abort();
    }
    blocks[find(at)] = {at, size, int(calls().size())};
}

void forget(const void* at)
{
    std::size_t gap = find(at);
    if (count == 0 || at == nullptr || blocks[gap].at == nullptr)
    {
        return;
    }
    --count;
    blocks[gap].at = nullptr;
    for (std::size_t place = next(gap); blocks[place].at != nullptr; place = next(place))
    {
        const Block moved = blocks[place];
        blocks[place].at = nullptr;
        blocks[find(moved.at)] = moved;
    }
}
}  // namespace

void noteBlocks()
{
    noting = true;
}

std::vector<Leak> leaks()
{
    noting = false;
    std::vector<Leak> found;
    for (const Block& block : blocks)
    {
        if (block.at != nullptr)
        {
            found.push_back({block.size, block.call});
        }
    }
    return found;
}
}  // namespace faults

using faults::forget;
using faults::isInModule;
using faults::note;

// The functions behind the library's own.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_realloc(void* memory, std::size_t size);
extern "C" void __libc_free(void* memory);

#    define IN_PLACE extern "C" __attribute__((visibility("default")))

static void* allocate(std::size_t size, const void* caller)
{
    void* const memory = __libc_malloc(size);
    if (faults::noting && isInModule(caller))
    {
        note(memory, size);
    }
    return memory;
}

IN_PLACE void* malloc(std::size_t size) noexcept
{
    return allocate(size, __builtin_return_address(0));
}

IN_PLACE void* realloc(void* memory, std::size_t size) noexcept
{
    forget(memory);
    void* const moved = __libc_realloc(memory, size);
    if (faults::noting && isInModule(__builtin_return_address(0)))
    {
        note(moved, size);
    }
    return moved;
}

IN_PLACE void free(void* memory) noexcept
{
    forget(memory);
    __libc_free(memory);
}

// The host creates each text that it returns with this call.
IN_PLACE wchar_t* wcsdup(const wchar_t* text) noexcept
{
    const std::size_t size = (std::wcslen(text) + 1) * sizeof *text;
    auto* const copy = static_cast<wchar_t*>(__libc_malloc(size));
    std::memcpy(copy, text, size);
    note(copy, size);
    return copy;
}

#    define EXPORTED __attribute__((visibility("default")))

EXPORTED void* operator new(std::size_t size)
{
    return allocate(size, __builtin_return_address(0));
}
EXPORTED void* operator new[](std::size_t size)
{
    return allocate(size, __builtin_return_address(0));
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
#endif
