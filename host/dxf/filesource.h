// What a database remembers of the file it was read from.
#pragma once

#include <functional>
#include <optional>

#include "host/database/core.h"
#include "host/dxf/codepage.h"
#include "host/dxf/edits.h"
#include "host/dxf/tagfile.h"

namespace host::dxf
{
struct LoadedLayer
{
    const Record* record;
    AcDbLayerTableRecord* layer;
    bool frozen, locked, off;
};

// A record that every drawing has and the file lacks.
struct AddedRecord
{
    std::string_view type;  // of its table: "LAYER"
    AcDbStub* stub;
};

// The state as read, to tell what has changed since. Pointers into `file` stay good with it.
struct FileSource : DrawingSource
{
    explicit FileSource(TagFile read)
        : file(std::move(read)), codePage(file.release(), file.codePageName())
    {
    }

    // The extents of model space, WCS. They are measured when they are first asked for, because a
    // header may state the box of an earlier drawing. That box counts as well where there are
    // entities that cannot be measured.
    const WorldExtents& modelExtents() override;
    // The extents that the header states. A header without a box, or with a single point, as some
    // programs write it, is replaced by `modelExtents`. Saving does without the measuring, which
    // takes longer than reading the file.
    WorldExtents statedExtents();

    TagFile file;
    CodePage codePage;
    DrawingState state;
    CurrentProperties current;
    std::vector<LoadedLayer> layers;
    std::vector<AddedRecord> added;
    const Record* viewport = nullptr;        // the first "*ACTIVE" one
    const Record* rootDictionary = nullptr;  // of named objects
    const Record* groupDictionary = nullptr;

private:
    std::optional<WorldExtents> m_extents;
};

struct Measured
{
    WorldExtents extents;
    bool isWhole;  // false if entities were left out
};

// Measures the entities of a file's model space; set by whoever knows all their kinds. Without it
// the extents are those that the header states.
using Measure = Measured (*)(const TagFile&);
void setMeasure(Measure measure);

inline FileSource& sourceOf(const DatabaseCore& core)
{
    return static_cast<FileSource&>(*core.source());
}
}  // namespace host::dxf
