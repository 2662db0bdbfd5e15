// Entities as tags.
#pragma once

#include <string>
#include <unordered_map>

#include "dbents.h"
#include "host/dxf/filesource.h"
#include "host/dxf/tagwriter.h"

namespace host::dxf
{
// Writes the entities of one database in the form of the file's release. Everything that lines of
// one style have in common is put together once.
class EntityWriter
{
public:
    EntityWriter(DatabaseCore& core, const FileSource& source);

    // All entities made since the drawing was opened that belong to `owner` and are not erased.
    // Throws std::domain_error, which names the entity, for what no tag can hold.
    void writeEntitiesOf(const AcDbStub* owner, TagWriter& writer);

private:
    // `last` is the one that is being written.
    void writeAll(const AcDbStub* owner, TagWriter& writer, const AcDbStub*& last);
    void writeUnpacked(const AcDbStub& stub, const AcDbStub* owner, TagWriter& writer);
    void writeText(const AcDbText& text, TagWriter& writer);
    void writePolyline(const AcDb2dPolyline& polyline, TagWriter& writer);

    const RecordForm& lineForm(std::uint32_t style);
    RecordForm makeLineForm(const LineStyle& style);
    void writeHandle(std::uint64_t handle, TagWriter& writer) const;
    void writeOwner(std::uint64_t handle, TagWriter& writer) const;
    void writeSubclass(std::string_view name, TagWriter& writer) const;
    void writeCommon(const LineStyle& style, TagWriter& writer);
    void writeLater(const LineStyle& style, TagWriter& writer) const;
    void writeReactors(const LineStyle& style, TagWriter& writer);
    std::string nameOf(const AcDbStub* record) const;

    DatabaseCore& m_core;
    const CodePage& m_codePage;
    const TagStyle m_style;
    const Release& m_release;
    bool m_handles;
    std::unordered_map<std::uint32_t, RecordForm> m_lineForms;
};

// 210, 220, 230 when the entity does not lie in a plane parallel to the world's.
void writeNormal(const AcGeVector3d& normal, TagWriter& writer);
}  // namespace host::dxf
