#include "host/windows/resfile.h"

#include <cstring>

#include "host/runtime/foldcase.h"

namespace host
{
namespace
{
const WORD numberMark = 0xFFFF;  // where a name would begin

class Reader
{
public:
    explicit Reader(std::span<const std::byte> bytes) : m_bytes(bytes) {}

    bool good() const { return m_good; }
    bool atEnd() const { return !m_good || m_position >= m_bytes.size(); }
    std::size_t position() const { return m_position; }
    void align() { m_position = (m_position + 3) / 4 * 4; }

    template <class Number>
    Number number()
    {
        Number value = 0;
        const std::span<const std::byte> part = take(sizeof value);
        if (!part.empty())
        {
            std::memcpy(&value, part.data(), sizeof value);
        }
        return value;
    }

    ResourceKey key()
    {
        const WORD first = number<WORD>();
        if (first == numberMark)
        {
            return {number<WORD>(), {}};
        }
        std::wstring name;
        for (WORD unit = first; unit != 0; unit = number<WORD>())
        {
            name += wchar_t(unit);
        }
        return {0, upperCase(name)};
    }

    std::span<const std::byte> take(std::size_t size)
    {
        m_good = m_good && m_position <= m_bytes.size() && size <= m_bytes.size() - m_position;
        if (!m_good)
        {
            return {};
        }
        m_position += size;
        return m_bytes.subspan(m_position - size, size);
    }

private:
    std::span<const std::byte> m_bytes;
    std::size_t m_position = 0;
    bool m_good = true;
};

// What follows the two keys: data version, memory flags, language, version, characteristics.
const std::size_t headerTail = 16;

Resource readResource(Reader& reader)
{
    Resource resource;
    const auto size = reader.number<DWORD>();
    reader.number<DWORD>();  // size of this header, which the keys tell as well
    resource.type = reader.key();
    resource.name = reader.key();
    reader.align();
    reader.take(headerTail);
    resource.bytes = reader.take(size);
    reader.align();
    return resource;
}
}  // namespace

ResourceKey resourceKey(LPCWSTR text)
{
    const auto number = reinterpret_cast<UINT_PTR>(text);
    return number <= 0xFFFF ? ResourceKey{WORD(number), {}} : ResourceKey{0, upperCase(text)};
}

std::optional<std::vector<Resource>> readResFile(std::span<const std::byte> bytes)
{
    std::vector<Resource> resources;
    for (Reader reader(bytes); !reader.atEnd();)
    {
        resources.push_back(readResource(reader));
        if (!reader.good())
        {
            return std::nullopt;
        }
    }
    return resources;
}
}  // namespace host
