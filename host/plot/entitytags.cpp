#include "host/plot/entitytags.h"

#include <algorithm>
#include <limits>

#include "host/basics/angle.h"
#include "host/dxf/owntags.h"
#include "host/dxf/schema/entities.h"

namespace host::plot
{
EntityTags::EntityTags(const dxf::TagFile& file, const dxf::Record& record)
    : m_file(file), m_record(record)
{
    dxf::BraceLists lists;
    for (const dxf::Tag& tag : dxf::ownTags(file, record))
    {
        if (!lists.take(tag))
        {
            m_tags.push_back(tag);
        }
    }
}

std::string_view EntityTags::type() const
{
    return m_file.typeName(m_record);
}

const dxf::Tag* EntityTags::find(Code code) const
{
    const auto found = std::ranges::find(m_tags, code, &dxf::Tag::code);
    return found != m_tags.end() ? &*found : nullptr;
}

double EntityTags::real(Code code, double fallback) const
{
    const dxf::Tag* tag = find(code);
    return tag != nullptr ? m_file.real(*tag) : fallback;
}

int EntityTags::integer(const dxf::Tag& tag) const
{
    const std::int64_t value = m_file.integer(tag);
    return int(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min() + 1,
                                        std::numeric_limits<int>::max()));
}

int EntityTags::integer(Code code, int fallback) const
{
    const dxf::Tag* tag = find(code);
    return tag != nullptr ? integer(*tag) : fallback;
}

std::string_view EntityTags::text(Code code) const
{
    const dxf::Tag* tag = find(code);
    return tag != nullptr ? trimmed(tag->value) : std::string_view();
}

AcGePoint3d EntityTags::point(Code code) const
{
    return {real(code), real(code.y()), real(code.z())};
}

AcGeVector3d EntityTags::normal() const
{
    const Code x = schema::entity::normal;
    return {real(x), real(x.y()), real(x.z(), 1)};
}

double EntityTags::radians(Code code, double fallback) const
{
    return toRadians(real(code, fallback));
}

Points EntityTags::points(Code code, double z) const
{
    Points points;
    for (const dxf::Tag& tag : m_tags)
    {
        if (tag.code == code)
        {
            points.emplace_back(real(tag), 0, z);
        }
        else if (!points.empty() && tag.code == code.y())
        {
            points.back().y = real(tag);
        }
        else if (!points.empty() && tag.code == code.z())
        {
            points.back().z = real(tag);
        }
    }
    return points;
}
}  // namespace host::plot
