// Walks through the tags of an entity in which the place of a code decides what it means.
#pragma once

#include "host/plot/entitytags.h"

namespace host::plot
{
class TagCursor
{
public:
    explicit TagCursor(const EntityTags& entity)  // [borrowed], outlives the cursor
        : m_source(entity.source()), m_rest(entity.all())
    {
    }

    bool atEnd() const { return m_rest.empty(); }
    bool at(Code code) const { return !atEnd() && m_rest.front().code == code; }
    template <class Sequence>
    bool at(const Sequence& sequence) const
    {
        return at(schema::firstCode(sequence));
    }

    // Moves forward to the first tag of the next such sequence. Returns false and stays when none
    // follows.
    template <class Sequence>
    bool seek(const Sequence& sequence)
    {
        const auto found = std::ranges::find(m_rest, schema::firstCode(sequence), &dxf::Tag::code);
        if (found == m_rest.end())
        {
            return false;
        }
        m_rest = m_rest.subspan(std::size_t(found - m_rest.begin()));
        return true;
    }

    // The same, but stays before the next `end`, too.
    template <class Sequence, class End>
    bool seek(const Sequence& sequence, const End& end)
    {
        const auto isEither = [&](const dxf::Tag& tag)
        { return tag.code == schema::firstCode(sequence) || tag.code == schema::firstCode(end); };
        const auto found = std::ranges::find_if(m_rest, isEither);
        if (found == m_rest.end() || found->code == schema::firstCode(end))
        {
            return false;
        }
        m_rest = m_rest.subspan(std::size_t(found - m_rest.begin()));
        return true;
    }

    // Reads a sequence and moves behind it. An attribute whose tag is not at its place keeps its
    // default.
    template <class Record, class Rows>
    Record read(const schema::Sequence<Record, Rows>& sequence)
    {
        Record record;
        schema::forEachRow(sequence.rows,
                           [&](const auto& row) { take(row.code, record.*row.member); });
        return record;
    }

private:
    void skip() { m_rest = m_rest.subspan(1); }

    // Each returns true if the tag was there.
    bool take(Code code, double& value);
    bool take(Code code, int& value);
    bool take(Code code, schema::PlanePoint& point);
    template <class Point>
    bool take(Code code, Point& point);
    template <class Value>
    bool take(Code code, std::optional<Value>& value);

    const dxf::TagSource& m_source;
    std::span<const dxf::Tag> m_rest;
};

inline bool TagCursor::take(Code code, double& value)
{
    const bool there = at(code);
    if (there)
    {
        value = m_source.file.real(m_rest.front());
        skip();
    }
    return there;
}

inline bool TagCursor::take(Code code, int& value)
{
    const bool there = at(code);
    if (there)
    {
        value = integerOf(m_source, m_rest.front());
        skip();
    }
    return there;
}

inline bool TagCursor::take(Code code, schema::PlanePoint& point)
{
    const bool there = take(code, point.x);
    take(code.y(), point.y);
    return there;
}

template <class Point>
bool TagCursor::take(Code code, Point& point)
{
    const bool there = take(code, point.x);
    take(code.y(), point.y);
    take(code.z(), point.z);
    return there;
}

template <class Value>
bool TagCursor::take(Code code, std::optional<Value>& value)
{
    Value read{};
    const bool there = take(code, read);
    if (there)
    {
        value = read;
    }
    return there;
}
}  // namespace host::plot
