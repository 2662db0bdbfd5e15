// The tags of one entity, by their group codes.
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

// What the entity says of itself: neither reactors nor extension dictionaries nor what
// applications hang on it. Values that are no numbers are refused by a dxf::Error.
class EntityTags
{
public:
    // Both [borrowed].
    EntityTags(const dxf::TagFile& file, const dxf::Record& record);

    std::string_view type() const;
    std::span<const dxf::Tag> all() const { return m_tags; }
    bool has(Code code) const { return find(code) != nullptr; }

    // The value of the first tag with the code.
    double real(Code code, double fallback = 0) const;
    int integer(Code code, int fallback = 0) const;
    std::string_view text(Code code) const;                // blanks around it left out
    AcGePoint3d point(Code code) const;                    // of which X has that code
    AcGeVector3d normal() const;                           // of the plane that it lies in
    double radians(Code code, double fallback = 0) const;  // of an angle in degrees

    double real(const dxf::Tag& tag) const { return m_file.real(tag); }
    int integer(const dxf::Tag& tag) const;

    // The points whose X has that code, in order; those of a plane have the Z given.
    Points points(Code code, double z = 0) const;

private:
    const dxf::Tag* find(Code code) const;

    const dxf::TagFile& m_file;
    const dxf::Record& m_record;
    std::vector<dxf::Tag> m_tags;
};
}  // namespace host::plot
