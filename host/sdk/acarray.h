// The host's growing array.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <type_traits>
#include <utility>

// End the run when an array is misused. The message on standard error names the call.
[[noreturn]] void acArrayIndexBreach(const char* call, int index, int length);
[[noreturn]] void acArrayMemoryBreach();

// An array owns its entries. The logical length counts the entries in use. The physical length
// counts the entries that fit without growing. The grow length is the smallest number of entries
// that a full array grows by, at least 1. A long array grows by half its length, so that the cost
// of appending does not depend on the length.
//
// An index outside the entries in use ends the run, and so does a failed allocation. A reference or
// pointer to an entry is [borrowed] and good until the array grows or shrinks. An entry may be
// passed to append and insertAt of its own array.
template <typename T>
class AcArray
{
public:
    // Create an empty array with room for that many entries, a copy of another array, or an array
    // that takes over the entries of another.
    AcArray(int initPhysicalLength = 0, int initGrowLength = 8) : AcArray(initGrowLength, Empty())
    {
        setPhysicalLength(initPhysicalLength);
    }
    AcArray(const AcArray& other) : AcArray(other.m_growLength, Empty()) { append(other); }
    AcArray(AcArray&& other) noexcept : AcArray(other.m_growLength, Empty()) { exchange(other); }
    ~AcArray()
    {
        destroyFrom(0);
        std::free(m_entries);
    }
    // Replace the entries by copies of the other array's entries, or by those entries themselves.
    // The grow length of this array stays unchanged.
    AcArray& operator=(const AcArray& other)
    {
        return this == &other ? *this : removeAll().append(other);
    }
    AcArray& operator=(AcArray&& other) noexcept
    {
        exchange(other);
        return *this;
    }
    // Tells whether both arrays have equal entries in the same order.
    bool operator==(const AcArray& other) const
    {
        return m_length == other.m_length && std::equal(begin(), end(), other.begin());
    }

    // Return the lengths; length and logicalLength are the same.
    int length() const { return m_length; }
    int logicalLength() const { return m_length; }
    int physicalLength() const { return m_physicalLength; }
    int growLength() const { return m_growLength; }
    bool isEmpty() const { return m_length == 0; }

    // Return an entry [borrowed]. first and last of an empty array end the run.
    T& operator[](int index) { return entry(index, "AcArray::operator[]"); }
    const T& operator[](int index) const { return entry(index, "AcArray::operator[]"); }
    T& at(int index) { return entry(index, "AcArray::at"); }
    const T& at(int index) const { return entry(index, "AcArray::at"); }
    T& first() { return entry(0, "AcArray::first"); }
    const T& first() const { return entry(0, "AcArray::first"); }
    T& last() { return entry(m_length - 1, "AcArray::last"); }
    const T& last() const { return entry(m_length - 1, "AcArray::last"); }
    // Return all entries, one after the other [borrowed], or null while nothing has been stored
    // yet.
    T* asArrayPtr() { return m_entries; }
    const T* asArrayPtr() const { return m_entries; }

    // Replace one entry or all entries in use.
    AcArray& setAt(int index, const T& value)
    {
        entry(index, "AcArray::setAt") = value;
        return *this;
    }
    AcArray& setAll(const T& value)
    {
        std::fill(begin(), end(), value);
        return *this;
    }

    // Adds a copy at the end and returns its index.
    int append(const T& value)
    {
        if (m_length < m_physicalLength)
        {
            ::new (end()) T(value);
        }
        else
        {
            T copy(value);  // value may be an entry of this array, which moves
            makeRoom(m_length + 1);
            ::new (end()) T(std::move(copy));
        }
        return m_length++;
    }
    // Adds copies of the other array's entries at the end. The other array may be this array.
    AcArray& append(const AcArray& other)
    {
        const int count = other.m_length;  // other may be this array
        makeRoom(m_length + count);
        for (int i = 0; i < count; ++i)
        {
            ::new (end()) T(other.m_entries[i]);
            ++m_length;
        }
        return *this;
    }
    // Inserts a copy in front of the entry at `index`. When index is the length, the copy is
    // appended.
    AcArray& insertAt(int index, const T& value)
    {
        checkIndex(index, m_length + 1, "AcArray::insertAt");
        append(value);
        std::rotate(begin() + index, end() - 1, end());
        return *this;
    }

    // Remove an entry and move the following ones up. Removing from an empty array ends the run.
    AcArray& removeAt(int index)
    {
        checkIndex(index, m_length, "AcArray::removeAt");
        std::move(begin() + index + 1, end(), begin() + index);
        destroyFrom(m_length - 1);
        return *this;
    }
    AcArray& removeFirst() { return removeAt(0); }
    AcArray& removeLast() { return removeAt(m_length - 1); }
    // Removes all entries and keeps the memory.
    AcArray& removeAll()
    {
        destroyFrom(0);
        return *this;
    }
    // Removes the first entry that equals value. Returns false when no entry does.
    bool remove(const T& value)
    {
        int index = 0;
        const bool found = find(value, index);
        if (found)
        {
            removeAt(index);
        }
        return found;
    }

    // Tells whether an entry at or behind `start` equals value. Points compare within
    // AcGeContext::gTol.
    bool contains(const T& value, int start = 0) const
    {
        int index = 0;
        return find(value, index, start);
    }
    // Sets foundAt to the index of the first such entry. Returns false when no entry equals value;
    // foundAt is unchanged then.
    bool find(const T& value, int& foundAt, int start = 0) const
    {
        for (int i = std::max(start, 0); i < m_length; ++i)
        {
            if (m_entries[i] == value)
            {
                foundAt = i;
                return true;
            }
        }
        return false;
    }

    // Sets the logical length. New entries are created by the default constructor; those of a plain
    // type have no defined value. Entries beyond the length are removed.
    AcArray& setLogicalLength(int length)
    {
        checkIndex(length, noLimit, "AcArray::setLogicalLength");
        destroyFrom(length);
        makeRoom(length);
        for (; m_length < length; ++m_length)
        {
            ::new (end()) T;
        }
        return *this;
    }
    // Sets the physical length to exactly that many entries. Entries that no longer fit are
    // removed.
    AcArray& setPhysicalLength(int length)
    {
        checkIndex(length, noLimit, "AcArray::setPhysicalLength");
        destroyFrom(length);
        if (length != m_physicalLength)
        {
            reallocate(length, std::is_trivially_copyable<T>());
        }
        return *this;
    }
    // Sets the grow length. A length below 1 counts as 1.
    AcArray& setGrowLength(int length)
    {
        m_growLength = std::max(length, 1);
        return *this;
    }

    // Reverse the order, or exchange two entries.
    AcArray& reverse()
    {
        std::reverse(begin(), end());
        return *this;
    }
    AcArray& swap(int index, int other)
    {
        std::swap(entry(index, "AcArray::swap"), entry(other, "AcArray::swap"));
        return *this;
    }

private:
    struct Empty
    {
    };
    enum
    {
        noLimit = 0x7fffffff
    };

    AcArray(int growLength, Empty)
        : m_entries(nullptr),
          m_length(0),
          m_physicalLength(0),
          m_growLength(std::max(growLength, 1))
    {
    }

    T* begin() { return m_entries; }
    const T* begin() const { return m_entries; }
    T* end() { return m_entries + m_length; }
    const T* end() const { return m_entries + m_length; }

    static void checkIndex(int index, int limit, const char* call)
    {
        if (static_cast<unsigned>(index) >= static_cast<unsigned>(limit))
        {
            acArrayIndexBreach(call, index, limit);
        }
    }
    T& entry(int index, const char* call)
    {
        checkIndex(index, m_length, call);
        return m_entries[index];
    }
    const T& entry(int index, const char* call) const
    {
        checkIndex(index, m_length, call);
        return m_entries[index];
    }

    void destroyFrom(int length)
    {
        while (m_length > length)
        {
            m_entries[--m_length].~T();
        }
    }
    void exchange(AcArray& other)
    {
        std::swap(m_entries, other.m_entries);
        std::swap(m_length, other.m_length);
        std::swap(m_physicalLength, other.m_physicalLength);
    }
    void makeRoom(int length)
    {
        if (length > m_physicalLength)
        {
            const int growth = std::max(m_growLength, m_physicalLength / 2);
            setPhysicalLength(std::max(length, m_physicalLength + growth));
        }
    }

    static T* checked(void* memory, int length)
    {
        if (memory == nullptr && length > 0)
        {
            acArrayMemoryBreach();
        }
        return static_cast<T*>(memory);
    }
    // Asks for at least one byte: an allocation of zero bytes may or may not return null.
    static std::size_t bytes(int length) { return std::max<std::size_t>(length * sizeof(T), 1); }

    void reallocate(int length, std::true_type)
    {
        void* const memory = std::realloc(static_cast<void*>(m_entries), bytes(length));
        m_entries = checked(memory, length);
        m_physicalLength = length;
    }
    void reallocate(int length, std::false_type)
    {
        T* const memory = checked(std::malloc(bytes(length)), length);
        for (int i = 0; i < m_length; ++i)
        {
            ::new (memory + i) T(std::move(m_entries[i]));
            m_entries[i].~T();
        }
        std::free(m_entries);
        m_entries = memory;
        m_physicalLength = length;
    }

    T* m_entries;
    int m_length;
    int m_physicalLength;
    int m_growLength;
};
