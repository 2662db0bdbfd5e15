// The host's growing array.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <type_traits>
#include <utility>

// The ways an array ends the run; the line on standard error names the call.
[[noreturn]] void acArrayIndexBreach(const char* call, int index, int length);
[[noreturn]] void acArrayMemoryBreach();

// An array owns its entries. The logical length counts the entries in use, the physical length
// those that fit without growing. The grow length is the least that a full array grows by, 1 or
// more; a long array grows by half its length, so that appending costs the same however long it
// gets.
//
// An index outside the entries in use ends the run, and so does memory that cannot be had. A
// reference or pointer to an entry is [borrowed] and good until the array grows or shrinks. An
// entry may be given to the array's own append and insertAt.
template <typename T>
class AcArray
{
public:
    // An empty array with room for that many entries; a copy; what the other array held.
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
    // Takes copies of the other's entries, or the entries themselves. The grow length stays this
    // array's own.
    AcArray& operator=(const AcArray& other)
    {
        return this == &other ? *this : removeAll().append(other);
    }
    AcArray& operator=(AcArray&& other) noexcept
    {
        exchange(other);
        return *this;
    }
    // True when both have equal entries in the same order.
    bool operator==(const AcArray& other) const
    {
        return m_length == other.m_length && std::equal(begin(), end(), other.begin());
    }

    // The lengths; length and logicalLength are the same.
    int length() const { return m_length; }
    int logicalLength() const { return m_length; }
    int physicalLength() const { return m_physicalLength; }
    int growLength() const { return m_growLength; }
    bool isEmpty() const { return m_length == 0; }

    // An entry [borrowed]. first and last of an empty array end the run.
    T& operator[](int index) { return entry(index, "AcArray::operator[]"); }
    const T& operator[](int index) const { return entry(index, "AcArray::operator[]"); }
    T& at(int index) { return entry(index, "AcArray::at"); }
    const T& at(int index) const { return entry(index, "AcArray::at"); }
    T& first() { return entry(0, "AcArray::first"); }
    const T& first() const { return entry(0, "AcArray::first"); }
    T& last() { return entry(m_length - 1, "AcArray::last"); }
    const T& last() const { return entry(m_length - 1, "AcArray::last"); }
    // All entries, one after the other [borrowed]; null while nothing was ever stored.
    T* asArrayPtr() { return m_entries; }
    const T* asArrayPtr() const { return m_entries; }

    // Replace one entry, and all entries in use.
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
    // Adds copies of the other's entries, which may be this array, at the end.
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
    // Puts a copy in front of the entry `index`. index may be the length, which appends.
    AcArray& insertAt(int index, const T& value)
    {
        checkIndex(index, m_length + 1, "AcArray::insertAt");
        append(value);
        std::rotate(begin() + index, end() - 1, end());
        return *this;
    }

    // Take an entry out; those behind it move up. Removing from an empty array ends the run.
    AcArray& removeAt(int index)
    {
        checkIndex(index, m_length, "AcArray::removeAt");
        std::move(begin() + index + 1, end(), begin() + index);
        destroyFrom(m_length - 1);
        return *this;
    }
    AcArray& removeFirst() { return removeAt(0); }
    AcArray& removeLast() { return removeAt(m_length - 1); }
    // Takes all entries out and keeps the memory.
    AcArray& removeAll()
    {
        destroyFrom(0);
        return *this;
    }
    // Takes out the first entry that equals value; false when there is none.
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

    // Whether an entry at or behind `start` equals value. Points compare within
    // AcGeContext::gTol.
    bool contains(const T& value, int start = 0) const
    {
        int index = 0;
        return find(value, index, start);
    }
    // Sets foundAt to the index of the first such entry; false, and foundAt as it was, when there
    // is none.
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

    // Makes the array that long. New entries are made by the default constructor; those of a plain
    // type hold no value yet. Entries beyond the length are removed.
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
    // Makes room for just that many entries. Entries that no longer fit are removed.
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
    // A length below 1 counts as 1.
    AcArray& setGrowLength(int length)
    {
        m_growLength = std::max(length, 1);
        return *this;
    }

    // Turn the order round, and exchange two entries.
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
    // At least one byte, since a request for none may give null or not.
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
