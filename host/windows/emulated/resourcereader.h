// Reads compiled resources: little-endian numbers and UTF-16 texts.
#pragma once

#include <cstddef>
#include <cstring>
#include <span>
#include <string>

#include "windows.h"

namespace host
{
// Reads bytes that are [borrowed] and outlive the reader and the spans that it returns. After the
// first read beyond the end, every read returns zero or an empty value.
class ResourceReader
{
public:
    // A number in a place where a name is possible.
    struct NameOrNumber
    {
        std::wstring name;
        WORD number = 0;
    };

    explicit ResourceReader(std::span<const std::byte> bytes) : m_bytes(bytes) {}

    bool good() const { return m_good; }
    bool atEnd() const { return !m_good || m_at >= m_bytes.size(); }
    void align() { m_at = (m_at + 3) / 4 * 4; }
    void skip(std::size_t size) { take(size); }

    std::span<const std::byte> take(std::size_t size)
    {
        m_good = m_good && m_at <= m_bytes.size() && size <= m_bytes.size() - m_at;
        if (!m_good)
        {
            return {};
        }
        m_at += size;
        return m_bytes.subspan(m_at - size, size);
    }

    template <class Number>
    Number number()
    {
        Number value = 0;
        const std::span<const std::byte> bytes = take(sizeof value);
        if (!bytes.empty())
        {
            std::memcpy(&value, bytes.data(), sizeof value);
        }
        return value;
    }

    NameOrNumber nameOrNumber()
    {
        const WORD numberFollows = 0xFFFF;
        const WORD first = number<WORD>();
        if (first == numberFollows)
        {
            return {{}, number<WORD>()};
        }
        NameOrNumber read;
        for (WORD unit = first; unit != 0; unit = number<WORD>())
        {
            read.name += wchar_t(unit);
        }
        return read;
    }

private:
    std::span<const std::byte> m_bytes;
    std::size_t m_at = 0;
    bool m_good = true;
};
}  // namespace host
