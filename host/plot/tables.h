// What the tables of a drawing say to its entities: layers and blocks by their names.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>

#include "gepnt3d.h"
#include "host/dxf/codepage.h"
#include "host/dxf/tagfile.h"
#include "host/colors/color.h"

namespace host::plot
{
struct Layer
{
    Color color = black;
    bool frozen = false;
    bool shown = true;  // neither off nor kept from plotting
};

struct Block
{
    AcGePoint3d base;
    std::span<const dxf::Record> records;  // of its entities
};

// All [borrowed] from the file. Names are as the file has them; letter case does not count.
class Tables
{
public:
    Tables(const dxf::TagFile& file, const dxf::CodePage& codePage);

    // A usual one for a name that the file lacks.
    const Layer& layer(std::string_view name) const;
    const Block* block(std::string_view name) const;

private:
    std::wstring key(std::string_view name) const;
    void readLayer(const dxf::TagFile& file, const dxf::Record& record);
    void readBlocks(const dxf::TagFile& file);

    const dxf::CodePage& m_codePage;
    std::map<std::wstring, Layer> m_layers;
    std::map<std::wstring, Block> m_blocks;
    // Names as they stand, so that a million entities decode theirs once.
    mutable std::unordered_map<std::string_view, const Layer*> m_layersAsWritten;
};

// An entity's own colour: nothing when it is that of its layer; 0 is that of its block.
struct OwnColor
{
    bool byLayer;
    bool byBlock;
    Color color;
};

// From the colour index and the true colour, where there are any.
OwnColor ownColor(int index, std::optional<int> rgb);
}  // namespace host::plot
