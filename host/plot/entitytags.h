// The tags of one entity, by their group codes.
#pragma once

#include <span>

#include "gepnt3d.h"
#include "gevec3d.h"
#include "host/dxf/tagfile.h"
#include "host/plot/sink.h"

namespace host::plot
{

// What the entity says of itself: neither reactors nor extension dictionaries nor what
// applications hang on it. Values that are no numbers are refused by a dxf::Error.
class EntityTags
{
public:
    // Both [borrowed].
    EntityTags(const dxf::TagFile& file, const dxf::Record& record);

    std::string_view type() const;
    std::span<const dxf::Tag> all() const { return m_tags; }
    bool has(int code) const { return find(code) != nullptr; }

    // The value of the first tag with the code.
    double real(int code, double fallback = 0) const;
    int integer(int code, int fallback = 0) const;
    std::string_view text(int code) const;                // blanks around it left out
    AcGePoint3d point(int code) const;                    // code, code + 10, code + 20
    AcGeVector3d normal() const;                          // of the plane that it lies in
    double radians(int code, double fallback = 0) const;  // of an angle in degrees

    double real(const dxf::Tag& tag) const { return m_file.real(tag); }
    int integer(const dxf::Tag& tag) const;

    // The points whose X has that code, in order; those of a plane have the Z given.
    Points points(int code, double z = 0) const;

private:
    const dxf::Tag* find(int code) const;

    const dxf::TagFile& m_file;
    const dxf::Record& m_record;
    std::vector<dxf::Tag> m_tags;
};
}  // namespace host::plot
