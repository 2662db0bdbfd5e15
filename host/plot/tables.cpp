#include "host/plot/tables.h"

#include <array>
#include <cstdlib>

#include "host/dxf/schema/entities.h"
#include "host/dxf/schema/tablerecords.h"
#include "host/colors/indexcolors.h"
#include "host/plot/entitytags.h"
#include "host/text/foldcase.h"

namespace host::plot
{
namespace
{
// Tells whether the layer is the one on which dimensions keep their points. The CAD program never
// plots that layer.
bool isDefpoints(std::string_view name)
{
    return equalNoCase(std::wstring(name.begin(), name.end()), L"Defpoints");
}

// Reads a record. A record whose number cannot be read counts as missing.
template <class Read>
void readable(const Read& read)
{
    try
    {
        read();
    }
    catch (const dxf::Error&)
    {
    }
}
}  // namespace

OwnColor ownColor(int index, std::optional<int> rgb)
{
    if (rgb)
    {
        const auto part = [&](int shift) { return (*rgb >> shift & 255) / 255.0; };
        return {false, false, {part(16), part(8), part(0)}};
    }
    return {index == schema::entity::colorByLayer, index == schema::entity::colorByBlock,
            indexColor(std::abs(index))};
}

Tables::Tables(const dxf::TagSource& source) : m_source(source)
{
    for (const dxf::Record& record : source.file.records(schema::section::tables))
    {
        if (source.file.typeName(record) == schema::layer::table.type)
        {
            readable([&] { readLayer(record); });
        }
    }
    readBlocks();
}

std::wstring Tables::key(std::string_view name) const
{
    return foldCase(m_source.codePage.decode(trimmed(name)));
}

void Tables::readLayer(const dxf::Record& record)
{
    const std::array wanted{schema::symbolFlags, schema::layer::color, schema::layer::plots,
                            schema::layer::trueColor};
    const EntityTags tags(m_source, record);
    const schema::layer::Layer read = tags.read(schema::layer::table, wanted);
    const std::string_view name = tags.text(schema::name);
    Layer layer;
    layer.color = ownColor(std::abs(read.color), read.trueColor).color;
    layer.frozen = (read.flags & schema::layer::frozenFlag) != 0;
    layer.shown = read.color >= 0 && read.plots != 0 && !isDefpoints(name);
    m_layers[key(name)] = layer;
}

void Tables::readBlocks()
{
    const dxf::TagFile& file = m_source.file;
    const std::span<const dxf::Record> records = file.records(schema::section::blocks);
    for (std::size_t i = 0; i < records.size(); ++i)
    {
        if (file.typeName(records[i]) != schema::block::table.type)
        {
            continue;
        }
        const EntityTags head(m_source, records[i]);
        const std::size_t first = i + 1;
        while (i + 1 < records.size() && file.typeName(records[i + 1]) != schema::endOfBlock)
        {
            ++i;
        }
        Block& block = m_blocks[key(head.text(schema::name))];
        block.records = records.subspan(first, i + 1 - first);
        readable([&] { block.base = head.read(schema::block::table).base; });
    }
}

const Layer& Tables::layer(std::string_view name) const
{
    static const Layer usual;
    const auto known = m_layersAsWritten.find(name);
    if (known != m_layersAsWritten.end())
    {
        return *known->second;
    }
    const auto found = m_layers.find(key(name));
    const Layer& layer = found != m_layers.end() ? found->second : usual;
    m_layersAsWritten.emplace(name, &layer);
    return layer;
}

const Block* Tables::block(std::string_view name) const
{
    const auto found = m_blocks.find(key(name));
    return found != m_blocks.end() ? &found->second : nullptr;
}
}  // namespace host::plot
