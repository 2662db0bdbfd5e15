// Writes entities as tags.
#pragma once

#include <string>
#include <unordered_map>

#include "dbents.h"
#include "host/dxf/filesource.h"
#include "host/dxf/recordwriter.h"
#include "host/dxf/schema/entities.h"

namespace host::dxf
{
// Writes the entities of one database in the form of the file's release. The tags that lines of one
// style have in common are composed only once.
class EntityWriter
{
public:
    EntityWriter(DatabaseCore& core, const FileSource& source);

    // Writes all entities that were made since the drawing was opened, belong to `owner` and are
    // not erased. Throws std::domain_error, which names the entity, for a value that no tag can
    // hold.
    void writeEntitiesOf(const AcDbStub* owner, TagWriter& writer);

private:
    // Writes the entities and keeps the one being written in `last`, so that the caller can name it
    // in an error.
    void writeAll(const AcDbStub* owner, TagWriter& writer, const AcDbStub*& last);
    void writeUnpacked(const AcDbStub& stub, const AcDbStub* owner, TagWriter& writer);
    void writeLine(const AcDbLine& line, TagWriter& writer);
    void writeText(const AcDbText& text, TagWriter& writer);
    void writePolyline(const AcDb2dPolyline& polyline, TagWriter& writer);
    void writeVertex(const AcDb2dVertex& vertex, TagWriter& writer);

    // The forms of the lines of one style. Most lines lie at one elevation.
    struct LineForms
    {
        double elevation;  // [wcs]
        RecordForm flat;   // of lines at this elevation
        RecordForm any;
    };

    const LineForms& lineForms(const AcDbStub& stub);
    LineForms makeLineForms(const LineStyle& style, double elevation);
    void fillCommon(schema::entity::Entity& entity, const LineStyle& style,
                    std::uint64_t handle) const;
    void fillCommon(schema::entity::Entity& entity, const AcDbEntity& from) const;
    static std::wstring nameOf(const AcDbStub* record);

    DatabaseCore& m_core;
    const FileForm m_form;
    const TagStyle m_style;
    bool m_handles;
    std::unordered_map<std::uint32_t, LineForms> m_lineForms;
};
}  // namespace host::dxf
