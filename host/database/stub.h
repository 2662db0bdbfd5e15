// The database's own record of an object, and the memory for such records.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <unordered_map>
#include <vector>

#include "dbmain.h"

namespace host
{
class DatabaseCore;
class StubArena;
}  // namespace host

// The stub alone holds a closed line, because a sheet may have a million lines. Every other object,
// and a line while it is open, lives on the heap; `object` points to it.
//
// What neighbouring stubs have in common stands once in their block. So only an arena makes stubs,
// and a stub is never copied. The coordinates of a packed line take the place of `object` and reach
// beyond the end of this class.
class AcDbStub
{
    friend class host::StubArena;
    std::uint32_t m_lowHandle;  // the lower half of the handle

public:
    enum Flag : std::uint32_t
    {
        isLine = 1,
        isPacked = 2,        // the stub holds the line, which has no object on the heap
        isLiving = 4,        // not erased; a stub without any flag is erased
        isDrawn = 8,         // the module has asked to show the object
        isEntity = 16,       // made in this run; entities of the file have no AcDbObject
        isLoose = 32,        // a line that the stub cannot hold; its object stays on the heap
        hasHandleApart = 64  // the arena keeps the handle
    };
    static constexpr std::uint32_t mostStyles = 1U << 24;

    AcDbStub(const AcDbStub&) = delete;
    AcDbStub& operator=(const AcDbStub&) = delete;

    std::uint32_t flags : 8;
    std::uint32_t style : 24;  // number of the shared properties of a line
    AcDbObject* object;

    std::uint64_t handle() const;
    bool packed() const { return (flags & isPacked) != 0; }
    bool erased() const { return (flags & isLiving) == 0; }
    void setErased(bool erased) { flags = erased ? flags & ~isLiving : flags | isLiving; }
};

namespace host
{
// The ends of a line [wcs].
struct LineEnds
{
    AcGePoint3d start;
    AcGePoint3d end;
};

// Holds stubs in the order in which they were made. The address of a stub never changes. Stubs are
// [borrowed] and live as long as the arena.
//
// A stub takes 40 bytes in a flat block, whose lines all lie at one elevation, and 56 bytes in any
// other block. A line that does not fit into a flat block begins a block that is not flat. The next
// flat block comes when the lines of a whole block lie at one elevation.
//
// A preview may make and erase a million lines many times in one step of undo. No undo brings such
// a line back. So the memory of a block is given back when a new block or step begins, if all
// objects of the block are of the current step, erased and closed. Its stubs stay erased for good.
class StubArena
{
public:
    explicit StubArena(DatabaseCore& core) : m_core(core) {}
    ~StubArena();
    StubArena(const StubArena&) = delete;
    StubArena& operator=(const StubArena&) = delete;

    // Adds a stub with that handle. Returns it [borrowed]; it lives as long as the arena.
    AcDbStub* add(std::uint64_t handle);
    // Does the same for a line. The stub has room for these ends.
    AcDbStub* addLine(std::uint64_t handle, const LineEnds& ends);
    // Gives a stub of this arena another handle.
    void setHandle(AcDbStub* stub, std::uint64_t handle);

    // Writes the ends of a line over `object`. Returns false and does nothing if the stub has no
    // room for them.
    static bool store(AcDbStub* stub, const LineEnds& ends);
    // Writes over `object` what stood in its place: the x of the start of the line.
    static void restore(AcDbStub* stub, double startX)
    {
        std::memcpy(placeOf(stub), &startX, sizeof startX);
    }
    // Returns the ends of a packed line.
    static LineEnds endsOf(const AcDbStub* stub);

    static DatabaseCore& coreOf(const AcDbStub* stub) { return blockOf(stub)->arena->m_core; }
    static std::uint64_t handleOf(const AcDbStub* stub)
    {
        const Block& block = *blockOf(stub);
        return (stub->flags & AcDbStub::hasHandleApart) == 0
                   ? std::uint64_t(block.highHandle) << 32 | stub->m_lowHandle
                   : block.arena->m_handlesApart.at(stub);
    }
    // Returns the address behind a stub. The stub made next lies there unless it begins a block.
    static AcDbStub* behind(AcDbStub* stub) { return after(stub, blockOf(stub)->stride); }

    // Begins a step: the stubs made from now on are those of the current step.
    void beginStep();
    // Tells whether a stub was made in the current step.
    static bool isOfThisStep(const AcDbStub* stub);
    // Notes that an object of the current step has been erased.
    static void noteErased(const AcDbStub* stub);
    // Tells whether the memory of a stub was given back.
    static bool isGone(const AcDbStub* stub) { return blockOf(stub)->isGone; }

    // Goes through stubs in their order, but not through those whose memory was given back. None
    // may be added meanwhile.
    class Iterator
    {
    public:
        AcDbStub& operator*() const { return *m_at; }
        Iterator& operator++()
        {
            m_at = after(m_at, m_stride);
            if (m_at == m_end)
            {
                enter(m_block + 1, 0);
            }
            return *this;
        }
        bool operator==(std::default_sentinel_t) const { return m_at == nullptr; }

    private:
        friend class StubArena;
        Iterator(const StubArena& arena, std::size_t block, std::size_t skipped) : m_arena(arena)
        {
            enter(block, skipped);
        }
        void enter(std::size_t block, std::size_t skipped);

        const StubArena& m_arena;
        std::size_t m_block = 0;
        std::size_t m_stride = 0;
        AcDbStub* m_at = nullptr;
        AcDbStub* m_end = nullptr;
    };
    struct Range
    {
        Iterator first;
        Iterator begin() const { return first; }
        std::default_sentinel_t end() const { return {}; }
    };
    // Returns the stubs from that place in the order on.
    Range from(std::size_t index) const;
    std::size_t size() const { return m_size; }

private:
    static constexpr std::size_t blockBytes = std::size_t(2) << 20;  // one large page
    static constexpr std::uint32_t headBytes = 8;                    // of a stub, before `object`
    static constexpr std::uint32_t flatStride = headBytes + 4 * sizeof(double);
    static constexpr std::uint32_t fullStride = headBytes + 6 * sizeof(double);
    static_assert(sizeof(AcDbStub) == headBytes + sizeof(void*));

    // A block is aligned to its own size, so that the address of a stub leads to its block, and so
    // to the database. The stubs follow this head.
    struct alignas(64) Block
    {
        StubArena* arena;
        std::size_t firstIndex;
        double elevation;  // [wcs] of the lines of a flat block; to be compared bit by bit
        std::uint32_t highHandle;
        std::uint32_t stride;
        std::uint32_t erasings = 0;  // of objects of the current step
        bool isGone = false;         // only this head is left

        AcDbStub* stub(std::size_t index)
        {
            return after(reinterpret_cast<AcDbStub*>(this + 1), index * stride);
        }
    };
    static_assert(sizeof(Block) == 64);

    static Block* blockOf(const AcDbStub* stub)
    {
        return reinterpret_cast<Block*>(reinterpret_cast<std::uintptr_t>(stub) & ~(blockBytes - 1));
    }
    static AcDbStub* after(AcDbStub* stub, std::size_t bytes)
    {
        return reinterpret_cast<AcDbStub*>(reinterpret_cast<std::byte*>(stub) + bytes);
    }
    // Returns where the coordinates of a packed line stand.
    static std::byte* placeOf(AcDbStub* stub)
    {
        return reinterpret_cast<std::byte*>(stub) + headBytes;
    }
    static bool same(double a, double b)
    {
        return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
    }

    static constexpr std::size_t roomOf(std::uint32_t stride)
    {
        return (blockBytes - sizeof(Block)) / stride;
    }
    std::size_t endOf(std::size_t block) const;
    static bool isAllErased(const Block& block);
    void discardErased();
    AcDbStub* make(std::uint64_t handle);
    void addBlock(bool isFlat, std::uint64_t handle);

    DatabaseCore& m_core;
    std::vector<Block*> m_blocks;
    std::vector<Block*> m_erased;  // blocks in which all objects have been erased at least once
    std::size_t m_size = 0;
    AcDbStub* m_next = nullptr;
    AcDbStub* m_end = nullptr;       // of the last block
    std::size_t m_linesOfBlock = 0;  // of the last block
    std::size_t m_linesAlike = 0;    // so many lines, up to the last, lie at one elevation
    std::size_t m_stepStart = 0;     // place of the first stub of the current step
    double m_elevation = 0;          // of the start of the last line
    std::unordered_map<const AcDbStub*, std::uint64_t> m_handlesApart;
};

inline bool StubArena::store(AcDbStub* stub, const LineEnds& ends)
{
    const Block& block = *blockOf(stub);
    if (block.stride == fullStride)
    {
        std::memcpy(placeOf(stub), &ends, sizeof ends);
        return true;
    }
    if (!same(ends.start.z, block.elevation) || !same(ends.end.z, block.elevation))
    {
        return false;
    }
    const double flat[] = {ends.start.x, ends.start.y, ends.end.x, ends.end.y};
    std::memcpy(placeOf(stub), flat, sizeof flat);
    return true;
}

inline LineEnds StubArena::endsOf(const AcDbStub* stub)
{
    const Block& block = *blockOf(stub);
    const std::byte* place = placeOf(const_cast<AcDbStub*>(stub));
    if (block.stride == fullStride)
    {
        double full[6];
        std::memcpy(full, place, sizeof full);
        return {{full[0], full[1], full[2]}, {full[3], full[4], full[5]}};
    }
    double flat[4];
    std::memcpy(flat, place, sizeof flat);
    return {{flat[0], flat[1], block.elevation}, {flat[2], flat[3], block.elevation}};
}
}  // namespace host

inline std::uint64_t AcDbStub::handle() const
{
    return host::StubArena::handleOf(this);
}
