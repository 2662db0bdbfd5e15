#include "host/windows/emulated/resfile.h"

#include "host/text/foldcase.h"
#include "host/windows/emulated/resourcereader.h"

namespace host
{
namespace
{
ResourceKey readKey(ResourceReader& reader)
{
    const ResourceReader::NameOrNumber read = reader.nameOrNumber();
    return {read.number, upperCase(read.name)};
}

// The size of the data after the two keys: data version, memory flags, language, version,
// characteristics.
const std::size_t headerTail = 16;

Resource readResource(ResourceReader& reader)
{
    Resource resource;
    const auto size = reader.number<DWORD>();
    reader.number<DWORD>();  // size of this header, which the keys determine as well
    resource.type = readKey(reader);
    resource.name = readKey(reader);
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
    for (ResourceReader reader(bytes); !reader.atEnd();)
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
