// The data that a database keeps about the file from which it was read.
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

// A record that every drawing has but this file lacks.
struct AddedRecord
{
    std::string_view type;  // the type of its table: "LAYER"
    AcDbStub* stub;
};

// The state as it was read, against which saving finds the changes. The pointers to records stay
// valid as long as `file`.
struct FileSource : DrawingSource
{
    explicit FileSource(TagFile read)
        : file(std::move(read)), codePage(file.release(), file.codePageName())
    {
    }

    // Returns the extents of model space [wcs]. They are measured on the first call, because a
    // header may state the box of an earlier state of the drawing. If some entities cannot be
    // measured, the box of the header is included.
    const WorldExtents& modelExtents() override;
    // Returns the extents that the header states [wcs]. Returns `modelExtents` if the header states
    // no box or, as some programs write it, a single point. Saving uses this function because
    // measuring takes longer than reading the file.
    WorldExtents statedExtents();

    TagFile file;
    CodePage codePage;
    DrawingState state;
    CurrentProperties current;
    std::vector<LoadedLayer> layers;
    std::vector<AddedRecord> added;
    const Record* viewport = nullptr;        // the first "*ACTIVE" viewport
    const Record* rootDictionary = nullptr;  // the dictionary of named objects
    const Record* groupDictionary = nullptr;

private:
    std::optional<WorldExtents> m_extents;
};

struct Measured
{
    WorldExtents extents;
    bool isWhole;  // false if entities were left out
};

// Measures the entities in the model space of a file. The part of the program that knows all kinds
// of entities sets this function. Without the function, the extents are those that the header
// states.
using Measure = Measured (*)(const TagFile&);
void setMeasure(Measure measure);

// Returns the source of a database that was read from a file [borrowed].
inline FileSource& sourceOf(const DatabaseCore& core)
{
    return static_cast<FileSource&>(*core.source());
}
}  // namespace host::dxf
