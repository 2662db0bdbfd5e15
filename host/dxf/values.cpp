#include "host/dxf/values.h"

namespace host::dxf
{
namespace
{
template <class Point>
void takePoint(const TagSource& source, const Tag& tag, Code code, Point& point)
{
    takeValue(source, tag, code, point.x);
    takeValue(source, tag, code.y(), point.y);
    takeValue(source, tag, code.z(), point.z);
}

template <class Point>
bool samePoint(const Point& a, const Point& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}
}  // namespace

void takeValue(const TagSource& source, const Tag& tag, Code code, std::wstring& value)
{
    if (tag.code == code)
    {
        value = source.codePage.decode(tag.value);
    }
}

void takeValue(const TagSource&, const Tag& tag, Code code, std::string_view& value)
{
    if (tag.code == code)
    {
        value = tag.value;
    }
}

void takeValue(const TagSource& source, const Tag& tag, Code code, int& value)
{
    if (tag.code == code)
    {
        value = int(source.file.integer(tag));
    }
}

void takeValue(const TagSource& source, const Tag& tag, Code code, double& value)
{
    if (tag.code == code)
    {
        value = source.file.real(tag);
    }
}

void takeValue(const TagSource& source, const Tag& tag, Code code, schema::Handle& value)
{
    if (tag.code == code)
    {
        value = source.file.handle(tag);
    }
}

void takeValue(const TagSource& source, const Tag& tag, Code code, schema::PlanePoint& value)
{
    takeValue(source, tag, code, value.x);
    takeValue(source, tag, code.y(), value.y);
}

void takeValue(const TagSource& source, const Tag& tag, Code code, AcGePoint3d& value)
{
    takePoint(source, tag, code, value);
}

void takeValue(const TagSource& source, const Tag& tag, Code code, AcGeVector3d& value)
{
    takePoint(source, tag, code, value);
}

bool same(const AcGePoint3d& a, const AcGePoint3d& b)
{
    return samePoint(a, b);
}

bool same(const AcGeVector3d& a, const AcGeVector3d& b)
{
    return samePoint(a, b);
}

bool same(const schema::PlanePoint& a, const schema::PlanePoint& b)
{
    return a.x == b.x && a.y == b.y;
}
}  // namespace host::dxf
