// The database's own record of an object, and the memory for such records.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "dbmain.h"

// The stub alone holds a closed line, because a sheet may have a million lines. Every other object,
// and a line while it is open, lives on the heap; `object` points to it.
class AcDbStub
{
public:
    enum Flag : std::uint32_t
    {
        isLine = 1,
        isPacked = 2,  // `line` holds the line, which has no object on the heap
        isErasedFlag = 4,
        isDrawn = 8,   // the module has asked to show the object
        isEntity = 16  // made in this run; entities of the file have no AcDbObject
    };

    std::uint64_t handle;
    std::uint32_t style;  // number of the shared properties of a line
    std::uint32_t flags;
    union
    {
        double line[6];  // start and end [wcs]
        AcDbObject* object;
    };

    bool packed() const { return (flags & isPacked) != 0; }
    bool erased() const { return (flags & isErasedFlag) != 0; }
    void setErased(bool erased) { flags = erased ? flags | isErasedFlag : flags & ~isErasedFlag; }
};

static_assert(sizeof(AcDbStub) == 64, "a line of the drawing costs one cache line");

namespace host
{
class DatabaseCore;

// Holds stubs in the order in which they were made. The address of a stub never changes. Stubs are
// [borrowed] and live as long as the arena.
class StubArena
{
public:
    explicit StubArena(DatabaseCore& core) : m_core(core) {}
    ~StubArena();
    StubArena(const StubArena&) = delete;
    StubArena& operator=(const StubArena&) = delete;

    // Adds a stub with that handle. Returns it [borrowed]; it lives as long as the arena.
    AcDbStub* add(std::uint64_t handle);
    std::size_t size() const { return m_size; }
    AcDbStub& operator[](std::size_t index) const
    {
        return m_blocks[index / perBlock]->stubs[index % perBlock];
    }
    static DatabaseCore& coreOf(const AcDbStub* stub) { return *blockOf(stub)->core; }
    // Returns the place of a stub in the order.
    static std::size_t indexOf(const AcDbStub* stub);

private:
    static constexpr std::size_t blockBytes = std::size_t(2) << 20;  // one large page
    static constexpr std::size_t perBlock = blockBytes / sizeof(AcDbStub) - 1;

    // A block is aligned to its own size, so that the address of a stub leads to its block, and so
    // to the database.
    struct Block
    {
        alignas(64) DatabaseCore* core;
        std::size_t firstIndex;
        alignas(64) AcDbStub stubs[perBlock];
    };
    static_assert(sizeof(Block) == blockBytes);

    static const Block* blockOf(const AcDbStub* stub)
    {
        return reinterpret_cast<const Block*>(reinterpret_cast<std::uintptr_t>(stub) &
                                              ~(blockBytes - 1));
    }

    void addBlock();

    DatabaseCore& m_core;
    std::vector<Block*> m_blocks;
    std::size_t m_size = 0;
    AcDbStub* m_next = nullptr;
    AcDbStub* m_end = nullptr;  // of the last block
};
}  // namespace host
