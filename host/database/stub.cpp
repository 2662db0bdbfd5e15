#include "host/database/stub.h"

#include <algorithm>
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

// Sets all bytes of a block to zero. The system takes the memory back if it can, as a whole,
// because it keeps a large page of which it gets only a part. What is written afterwards takes
// small pages.
void discard([[maybe_unused]] void* block, [[maybe_unused]] std::size_t bytes)
{
#ifdef __linux__
    if (::madvise(block, bytes, MADV_DONTNEED) == 0)
    {
        ::madvise(block, bytes, MADV_NOHUGEPAGE);
        return;
    }
#endif
    std::memset(block, 0, bytes);
}

std::uint32_t highHalf(std::uint64_t handle)
{
    return std::uint32_t(handle >> 32);
}
}  // namespace

StubArena::~StubArena()
{
    for (Block* block : m_blocks)
    {
        ::operator delete(block, std::align_val_t(blockBytes));
    }
}

void StubArena::addBlock(bool isFlat, std::uint64_t handle)
{
    discardErased();
    void* memory = ::operator new(blockBytes, std::align_val_t(blockBytes));
    if (!m_blocks.empty())  // small drawings do not fill one block
    {
        askForLargePage(memory, blockBytes);
    }
    const std::uint32_t stride = isFlat ? flatStride : fullStride;
    m_blocks.push_back(new (memory) Block{this, m_size, 0, highHalf(handle), stride});
    m_next = m_blocks.back()->stub(0);
    m_end = m_blocks.back()->stub(roomOf(stride));
    m_linesOfBlock = 0;
}

AcDbStub* StubArena::make(std::uint64_t handle)
{
    Block& block = *m_blocks.back();
    AcDbStub* stub = m_next;
    m_next = after(stub, block.stride);
    ++m_size;
    stub->m_lowHandle = std::uint32_t(handle);
    stub->flags = AcDbStub::isLiving;
    stub->style = 0;
    stub->object = nullptr;
    if (highHalf(handle) != block.highHandle)
    {
        setHandle(stub, handle);
    }
    return stub;
}

AcDbStub* StubArena::add(std::uint64_t handle)
{
    if (m_next == m_end)
    {
        addBlock(m_linesAlike >= m_linesOfBlock, handle);
    }
    return make(handle);
}

AcDbStub* StubArena::addLine(std::uint64_t handle, const LineEnds& ends)
{
    const bool isLevel = same(ends.start.z, ends.end.z);
    const bool isLikeTheLast = isLevel && same(ends.start.z, m_elevation);
    m_linesAlike = isLikeTheLast ? m_linesAlike + 1 : isLevel;
    m_elevation = ends.start.z;

    const bool isFlat = m_linesAlike > m_linesOfBlock;  // this line and all others of the block
    if (m_next == m_end || (!isFlat && m_blocks.back()->stride == flatStride))
    {
        addBlock(isFlat, handle);
    }
    if (m_linesOfBlock++ == 0)
    {
        m_blocks.back()->elevation = m_elevation;
    }
    return make(handle);
}

[[gnu::noinline]] void StubArena::setHandle(AcDbStub* stub, std::uint64_t handle)
{
    stub->m_lowHandle = std::uint32_t(handle);
    if (highHalf(handle) == blockOf(stub)->highHandle)
    {
        stub->flags &= ~AcDbStub::hasHandleApart;
        m_handlesApart.erase(stub);
        return;
    }
    m_handlesApart[stub] = handle;
    stub->flags |= AcDbStub::hasHandleApart;
}

// Returns the place behind the last stub of a block.
std::size_t StubArena::endOf(std::size_t block) const
{
    return block + 1 < m_blocks.size() ? m_blocks[block + 1]->firstIndex : m_size;
}

void StubArena::beginStep()
{
    discardErased();
    m_stepStart = m_size;
}

bool StubArena::isOfThisStep(const AcDbStub* stub)
{
    Block& block = *blockOf(stub);
    const std::size_t stepStart = block.arena->m_stepStart;
    return block.firstIndex >= stepStart ||
           (stepStart - block.firstIndex) * block.stride <=
               std::size_t(reinterpret_cast<const std::byte*>(stub) -
                           reinterpret_cast<const std::byte*>(block.stub(0)));
}

void StubArena::noteErased(const AcDbStub* stub)
{
    Block& block = *blockOf(stub);
    if (++block.erasings == roomOf(block.stride))
    {
        block.arena->m_erased.push_back(&block);
    }
}

void StubArena::discardErased()
{
    for (Block* block : m_erased)
    {
        if (block->firstIndex >= m_stepStart && isAllErased(*block))
        {
            const Block head = *block;
            discard(block, blockBytes);
            (new (block) Block(head))->isGone = true;
        }
    }
    m_erased.clear();
}

// Tells whether no stub of a full block is needed any more. Objects with a name may be asked for by
// that name, so only entities and what is part of them can go. An object on the heap stays there.
bool StubArena::isAllErased(const Block& block)
{
    for (std::size_t i = 0; i < roomOf(block.stride); ++i)
    {
        const AcDbStub& stub = *const_cast<Block&>(block).stub(i);
        const bool isOnHeap = !stub.packed() && stub.object != nullptr;
        const bool isNeeded =
            isOnHeap && (stub.object->isReadEnabled() || (stub.flags & AcDbStub::isEntity) == 0);
        if (!stub.erased() || isNeeded)
        {
            return false;
        }
    }
    return true;
}

StubArena::Range StubArena::from(std::size_t index) const
{
    const auto isBehind = [](std::size_t at, const Block* block) { return at < block->firstIndex; };
    const auto next = std::upper_bound(m_blocks.begin(), m_blocks.end(), index, isBehind);
    const std::size_t block = std::size_t(next - m_blocks.begin());
    return block == 0 ? Range{Iterator(*this, 0, 0)}
                      : Range{Iterator(*this, block - 1, index - m_blocks[block - 1]->firstIndex)};
}

void StubArena::Iterator::enter(std::size_t block, std::size_t skipped)
{
    const std::vector<Block*>& blocks = m_arena.m_blocks;
    while (block < blocks.size() && blocks[block]->isGone)
    {
        ++block;
        skipped = 0;
    }
    if (block == blocks.size())
    {
        m_at = nullptr;
        return;
    }
    m_block = block;
    m_stride = blocks[block]->stride;
    m_end = blocks[block]->stub(m_arena.endOf(block) - blocks[block]->firstIndex);
    m_at = blocks[block]->stub(skipped);
    if (m_at == m_end)  // nothing follows what was skipped
    {
        m_at = nullptr;
    }
}
}  // namespace host
