// Writes attributes as tags, reads them from tags and compares them, for each type.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "host/dxf/codepage.h"
#include "host/dxf/schema/table.h"
#include "host/dxf/tagfile.h"

namespace host::dxf
{
// Write an attribute. `Out` has the functions of a TagWriter.
template <class Out>
void putValue(Out& out, Code code, const std::wstring& value, const CodePage& codePage)
{
    out.text(code, codePage.encode(value));
}

template <class Out>
void putValue(Out& out, Code code, std::string_view value, const CodePage&)
{
    out.text(code, value);
}

template <class Out>
void putValue(Out& out, Code code, int value, const CodePage&)
{
    out.integer(code, value);
}

template <class Out>
void putValue(Out& out, Code code, double value, const CodePage&)
{
    out.real(code, value);
}

template <class Out>
void putValue(Out& out, Code code, schema::Handle value, const CodePage&)
{
    out.handle(code, value);
}

template <class Out>
void putValue(Out& out, Code code, const schema::PlanePoint& value, const CodePage&)
{
    out.point(code, value.x, value.y);
}

template <class Out>
void putValue(Out& out, Code code, const AcGePoint3d& value, const CodePage&)
{
    out.point(code, value.x, value.y, value.z);
}

template <class Out>
void putValue(Out& out, Code code, const AcGeVector3d& value, const CodePage&)
{
    out.point(code, value.x, value.y, value.z);
}

template <class Out, class Value>
void putValue(Out& out, Code code, const std::optional<Value>& value, const CodePage& codePage)
{
    if (value)
    {
        putValue(out, code, *value, codePage);
    }
}

template <class Out, class Value>
void putValue(Out& out, Code code, const std::vector<Value>& values, const CodePage& codePage)
{
    for (const Value& value : values)
    {
        putValue(out, code, value, codePage);
    }
}

// The file and the code page from which tags are read.
struct TagSource
{
    const TagFile& file;
    const CodePage& codePage;
};

// Read `tag` into `value` if the tag belongs to the attribute that begins with `code`. Throw an
// Error if the value has another type.
inline void takeValue(const TagSource& source, const Tag& tag, Code code, std::wstring& value)
{
    if (tag.code == code)
    {
        value = source.codePage.decode(tag.value);
    }
}
inline void takeValue(const TagSource&, const Tag& tag, Code code, std::string_view& value)
{
    if (tag.code == code)
    {
        value = tag.value;
    }
}
inline void takeValue(const TagSource& source, const Tag& tag, Code code, int& value)
{
    if (tag.code == code)
    {
        value = int(source.file.integer(tag));
    }
}
inline void takeValue(const TagSource& source, const Tag& tag, Code code, double& value)
{
    if (tag.code == code)
    {
        value = source.file.real(tag);
    }
}
inline void takeValue(const TagSource& source, const Tag& tag, Code code, schema::Handle& value)
{
    if (tag.code == code)
    {
        value = source.file.handle(tag);
    }
}
template <class Point>
void takePoint(const TagSource& source, const Tag& tag, Code code, Point& point)
{
    takeValue(source, tag, code, point.x);
    takeValue(source, tag, code.y(), point.y);
    takeValue(source, tag, code.z(), point.z);
}
inline void takeValue(const TagSource& source, const Tag& tag, Code code, schema::PlanePoint& value)
{
    takeValue(source, tag, code, value.x);
    takeValue(source, tag, code.y(), value.y);
}
inline void takeValue(const TagSource& source, const Tag& tag, Code code, AcGePoint3d& value)
{
    takePoint(source, tag, code, value);
}
inline void takeValue(const TagSource& source, const Tag& tag, Code code, AcGeVector3d& value)
{
    takePoint(source, tag, code, value);
}
template <class Value>
void takeValue(const TagSource& source, const Tag& tag, Code code, std::optional<Value>& value)
{
    if (tag.code == code)
    {
        value.emplace();
    }
    if (value)
    {
        takeValue(source, tag, code, *value);
    }
}
template <class Value>
void takeValue(const TagSource& source, const Tag& tag, Code code, std::vector<Value>& values)
{
    if (tag.code == code)
    {
        values.emplace_back();
    }
    if (!values.empty())
    {
        takeValue(source, tag, code, values.back());
    }
}

// Return true if the values are exactly equal. The operators of points, by contrast, have
// tolerances.
bool same(const AcGePoint3d& a, const AcGePoint3d& b);
bool same(const AcGeVector3d& a, const AcGeVector3d& b);
bool same(const schema::PlanePoint& a, const schema::PlanePoint& b);
template <class Value>
bool same(const Value& a, const Value& b)
{
    return a == b;
}
template <class Value>
bool same(const std::optional<Value>& a, const std::optional<Value>& b)
{
    return a && b ? same(*a, *b) : a.has_value() == b.has_value();
}
template <class Value>
bool same(const std::vector<Value>& a, const std::vector<Value>& b)
{
    return std::ranges::equal(a, b, [](const Value& x, const Value& y) { return same(x, y); });
}
}  // namespace host::dxf
