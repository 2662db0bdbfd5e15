// The tags of a record without the data that applications attach to it.
#pragma once

#include "host/dxf/schema/structure.h"
#include "host/dxf/tagfile.h"

namespace host::dxf
{
// A range of tags that ends before the data of applications and before embedded objects.
class OwnTags
{
public:
    class Iterator : public Tags::Iterator
    {
    public:
        explicit Iterator(const Tags& tags) : Tags::Iterator(tags.begin()) {}
        bool operator==(std::default_sentinel_t end) const
        {
            return Tags::Iterator::operator==(end) || schema::endsOwnTags((*this)->code);
        }
    };

    explicit OwnTags(const Tags& tags) : m_tags(tags) {}
    Iterator begin() const { return Iterator(m_tags); }
    std::default_sentinel_t end() const { return {}; }

private:
    Tags m_tags;
};

inline OwnTags ownTags(const TagFile& file, const Record& record)
{
    return OwnTags(file.tags(record));
}

// Returns the offset at which new tags of a record are inserted.
inline std::size_t endOfOwnTags(const TagFile& file, const Record& record)
{
    std::size_t end = record.begin;
    for (const Tag& tag : ownTags(file, record))
    {
        end = tag.end;
    }
    return end;
}

// Recognises the lists of a record, from "102 {ACAD_REACTORS" to "102 }". Tags in a list use group
// codes that mean something else outside it. The object must be given every tag in order.
class BraceLists
{
public:
    // Takes the next tag. Returns true if the tag belongs to a list or bounds one.
    bool take(const Tag& tag)
    {
        const bool bounds = tag.code == schema::list;
        m_inside = bounds ? trimmed(tag.value).starts_with('{') : m_inside;
        return bounds || m_inside;
    }

private:
    bool m_inside = false;
};
}  // namespace host::dxf
