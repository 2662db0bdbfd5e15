// Finds the layers and blocks of a drawing by their names.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>

#include "gepnt3d.h"
#include "host/dxf/values.h"
#include "host/colors/color.h"

namespace host::plot
{
// The properties of a layer that a plot needs.
struct Layer
{
    Color color = black;
    bool frozen = false;
    bool shown = true;  // false when the layer is off or must not be plotted
};

// A block definition.
struct Block
{
    AcGePoint3d base;
    std::span<const dxf::Record> records;  // the records of its entities [borrowed]
};

// The layers and blocks of a file. The file and the code page are [borrowed] and outlive the
// tables. Names are in the file's encoding; letter case is ignored.
class Tables
{
public:
    explicit Tables(const dxf::TagSource& source);

    // Returns the layer [borrowed], or a visible black layer for a name that the file lacks.
    const Layer& layer(std::string_view name) const;
    // Returns the block [borrowed], or null when the file lacks it.
    const Block* block(std::string_view name) const;

private:
    std::wstring key(std::string_view name) const;
    void readLayer(const dxf::Record& record);
    void readBlocks();

    const dxf::TagSource m_source;
    std::map<std::wstring, Layer> m_layers;
    std::map<std::wstring, Block> m_blocks;
    // The layers by their names in the file's encoding. A million entities then decode each name
    // only once.
    mutable std::unordered_map<std::string_view, const Layer*> m_layersAsWritten;
};

// An entity's own colour. `color` is used only when neither the layer nor the block gives the
// colour.
struct OwnColor
{
    bool byLayer;
    bool byBlock;
    Color color;
};

// Returns the colour for a colour index and, if the entity has one, a true colour, which takes
// precedence over the index.
OwnColor ownColor(int index, std::optional<int> rgb);
}  // namespace host::plot
