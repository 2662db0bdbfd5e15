// Reads the tags of one entity by their group codes.
#pragma once

#include <span>

#include "gepnt3d.h"
#include "gevec3d.h"
#include "host/dxf/schema/structure.h"
#include "host/dxf/tagfile.h"
#include "host/plot/sink.h"

namespace host::plot
{
namespace schema = dxf::schema;
using dxf::Code;

// The entity's own tags, without reactors, extension dictionaries and the data of applications. A
// number that cannot be read throws a dxf::Error. Views are [borrowed] from the file.
class EntityTags
{
public:
    // Both are [borrowed] and outlive this object.
    EntityTags(const dxf::TagFile& file, const dxf::Record& record);

    std::string_view type() const;
    std::span<const dxf::Tag> all() const { return m_tags; }
    bool has(Code code) const { return find(code) != nullptr; }

    // Return the value of the first tag with the code, or the fallback when no tag has the code.
    double real(Code code, double fallback = 0) const;
    int integer(Code code, int fallback = 0) const;
    std::string_view text(Code code) const;                // without blanks around it
    AcGePoint3d point(Code code) const;                    // the point whose X has the code
    AcGeVector3d normal() const;                           // the normal of the entity's plane
    double radians(Code code, double fallback = 0) const;  // [rad], stored in degrees

    double real(const dxf::Tag& tag) const { return m_file.real(tag); }
    int integer(const dxf::Tag& tag) const;

    // Returns all points whose X has that code, in order. `z` is the Z of points that have only X
    // and Y.
    Points points(Code code, double z = 0) const;

private:
    const dxf::Tag* find(Code code) const;

    const dxf::TagFile& m_file;
    const dxf::Record& m_record;
    std::vector<dxf::Tag> m_tags;
};
}  // namespace host::plot
