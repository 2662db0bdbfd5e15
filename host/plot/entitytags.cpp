#include "host/plot/entitytags.h"

#include <limits>

#include "host/dxf/owntags.h"

namespace host::plot
{
EntityTags::EntityTags(const dxf::TagSource& source, const dxf::Record& record)
    : m_source(source), m_record(record)
{
    const std::size_t usualTags = 24;
    m_tags.reserve(usualTags);
    dxf::BraceLists lists;
    for (const dxf::Tag& tag : dxf::ownTags(source.file, record))
    {
        if (!lists.take(tag))
        {
            m_tags.push_back(tag);
        }
    }
}

const dxf::Tag* EntityTags::find(Code code) const
{
    const auto found = std::ranges::find(m_tags, code, &dxf::Tag::code);
    return found != m_tags.end() ? &*found : nullptr;
}

std::string_view EntityTags::text(Code code) const
{
    const dxf::Tag* tag = find(code);
    return tag != nullptr ? trimmed(tag->value) : std::string_view();
}

void EntityTags::take(Code code, int& value) const
{
    if (const dxf::Tag* tag = find(code))
    {
        value = integerOf(m_source, *tag);
    }
}

void EntityTags::take(Code code, schema::PlanePoint& point) const
{
    take(code, point.x);
    take(code.y(), point.y);
}

int integerOf(const dxf::TagSource& source, const dxf::Tag& tag)
{
    const std::int64_t value = source.file.integer(tag);
    return int(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min() + 1,
                                        std::numeric_limits<int>::max()));
}
}  // namespace host::plot
