#include "host/plot/entitytags.h"

#include <algorithm>
#include <limits>
#include <numbers>

namespace host::plot
{
EntityTags::EntityTags(const dxf::TagFile& file, const dxf::Record& record)
    : m_file(file), m_record(record)
{
    bool inList = false;  // "{ACAD_REACTORS" and the like
    for (const dxf::Tag& tag : file.tags(record))
    {
        if (tag.code == 1001 || tag.code == 101)
        {
            break;
        }
        if (tag.code == 102)
        {
            inList = trimmed(tag.value).starts_with('{');
        }
        else if (!inList)
        {
            m_tags.push_back(tag);
        }
    }
}

std::string_view EntityTags::type() const
{
    return m_file.typeName(m_record);
}

const dxf::Tag* EntityTags::find(int code) const
{
    const auto found = std::ranges::find(m_tags, code, &dxf::Tag::code);
    return found != m_tags.end() ? &*found : nullptr;
}

double EntityTags::real(int code, double fallback) const
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

int EntityTags::integer(int code, int fallback) const
{
    const dxf::Tag* tag = find(code);
    return tag != nullptr ? integer(*tag) : fallback;
}

std::string_view EntityTags::text(int code) const
{
    const dxf::Tag* tag = find(code);
    return tag != nullptr ? trimmed(tag->value) : std::string_view();
}

AcGePoint3d EntityTags::point(int code) const
{
    return {real(code), real(code + 10), real(code + 20)};
}

AcGeVector3d EntityTags::normal() const
{
    return {real(210), real(220), real(230, 1)};
}

double EntityTags::radians(int code, double fallback) const
{
    return real(code, fallback) * std::numbers::pi / 180;
}

Points EntityTags::points(int code, double z) const
{
    Points points;
    for (const dxf::Tag& tag : m_tags)
    {
        if (tag.code == code)
        {
            points.emplace_back(real(tag), 0, z);
        }
        else if (!points.empty() && tag.code == code + 10)
        {
            points.back().y = real(tag);
        }
        else if (!points.empty() && tag.code == code + 20)
        {
            points.back().z = real(tag);
        }
    }
    return points;
}
}  // namespace host::plot
