#include "host/database/objectmemory.h"

#include <array>
#include <new>

#include "dbents.h"

namespace host
{
namespace
{
// The address sanitizer cannot see the use of a deleted object whose memory is kept.
#if defined __SANITIZE_ADDRESS__
constexpr bool keepsMemory = false;
#elif defined __has_feature
constexpr bool keepsMemory = !__has_feature(address_sanitizer);
#else
constexpr bool keepsMemory = true;
#endif

// Memory for lines. Only the thread that runs the command may use the database, so nothing is
// locked.
class KeptMemory
{
public:
    // Returns memory for a line, or nullptr if none is kept.
    void* take() { return m_count != 0 ? m_kept[--m_count] : nullptr; }
    // Keeps the memory of a line [adopted]. Returns false and does nothing if enough is kept.
    bool keep(void* memory)
    {
        if (!keepsMemory || m_count == m_kept.size())
        {
            return false;
        }
        m_kept[m_count++] = memory;
        return true;
    }

private:
    std::array<void*, 16> m_kept{};
    std::size_t m_count = 0;
};

KeptMemory kept;
}  // namespace

void freeKeptMemory()
{
    while (void* memory = kept.take())
    {
        ::operator delete(memory);
    }
}
}  // namespace host

void* AcHeapOperators::operator new(std::size_t size)
{
    void* memory = size == sizeof(AcDbLine) ? host::kept.take() : nullptr;
    return memory != nullptr ? memory : ::operator new(size);
}

void AcHeapOperators::operator delete(void* memory, std::size_t size)
{
    if (size != sizeof(AcDbLine) || memory == nullptr || !host::kept.keep(memory))
    {
        ::operator delete(memory);
    }
}
