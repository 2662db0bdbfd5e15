#include "host/database/stub.h"

#include <new>

namespace host
{
StubArena::~StubArena()
{
    for (Block* block : m_blocks)
    {
        ::operator delete(block, std::align_val_t(blockBytes));
    }
}

AcDbStub* StubArena::add(std::uint64_t handle)
{
    if (m_size == m_blocks.size() * perBlock)
    {
        auto* block = static_cast<Block*>(::operator new(blockBytes, std::align_val_t(blockBytes)));
        block->core = &m_core;
        block->firstIndex = m_size;
        m_blocks.push_back(block);
    }
    AcDbStub& stub = (*this)[m_size++];
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
