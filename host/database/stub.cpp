#include "host/database/stub.h"

#include <new>
#ifdef __linux__
#    include <sys/mman.h>
#endif

namespace host
{
namespace
{
// Asks for large pages: two million lines would otherwise cause thirty thousand page faults of 4 KB
// each.
void askForLargePage([[maybe_unused]] void* block, [[maybe_unused]] std::size_t bytes)
{
#ifdef __linux__
    ::madvise(block, bytes, MADV_HUGEPAGE);  // the program is only slower if the system refuses
#endif
}
}  // namespace

StubArena::~StubArena()
{
    for (Block* block : m_blocks)
    {
        ::operator delete(block, std::align_val_t(blockBytes));
    }
}

void StubArena::addBlock()
{
    auto* block = static_cast<Block*>(::operator new(blockBytes, std::align_val_t(blockBytes)));
    if (!m_blocks.empty())  // small drawings do not fill one block
    {
        askForLargePage(block, blockBytes);
    }
    block->core = &m_core;
    block->firstIndex = m_size;
    m_blocks.push_back(block);
    m_next = block->stubs;
    m_end = block->stubs + perBlock;
}

AcDbStub* StubArena::add(std::uint64_t handle)
{
    if (m_next == m_end)
    {
        addBlock();
    }
    AcDbStub& stub = *m_next++;
    ++m_size;
    stub.handle = handle;
    stub.style = 0;
    stub.flags = 0;
    stub.object = nullptr;
    return &stub;
}

std::size_t StubArena::indexOf(const AcDbStub* stub)
{
    const Block* block = blockOf(stub);
    return block->firstIndex + std::size_t(stub - block->stubs);
}
}  // namespace host
