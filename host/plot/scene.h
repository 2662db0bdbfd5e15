// Draws the model space of a drawing as shapes.
#pragma once

#include <map>
#include <string>

#include "gemat3d.h"
#include "host/dxf/progress.h"
#include "host/dxf/schema/entities.h"
#include "host/plot/entitytags.h"
#include "host/plot/sink.h"
#include "host/plot/tables.h"

namespace host::plot
{
class Scene
{
public:
    // The file [borrowed] outlives the scene. `mostFromBlocks` limits the entities that blocks add
    // to those of the file, because blocks may hold each other and an insert may have thousands of
    // rows.
    explicit Scene(const dxf::TagFile& file, long mostFromBlocks = 3'000'000);

    // Draws everything that is visible [wcs], in the drawing's order. Each call draws the same.
    void draw(Sink& sink, const Progress& progress = {});

    // Returns the entities that the last `draw` left out, as "1 IMAGE, 2 MESH", or an empty text
    // when nothing was left out.
    std::string leftOut() const;

private:
    // Tells where and how the entities of a space or block are drawn. The layer is [borrowed] from
    // the tables.
    struct Container
    {
        AcGeMatrix3d toWorld;
        const Layer* layer;  // the layer of a block's entities on layer 0; null in model space
        Color color;         // the colour of entities that take their block's colour
        int depth;
    };

    using Records = std::span<const dxf::Record>;
    using Look = schema::entity::Look;

    bool spend();  // counts an entity; returns false when the budget is spent
    void drawAll(Records records, const Container& container, Sink& sink);
    // Draws one entity and returns the number of its records.
    std::size_t drawOne(Records records, const Container& container, Sink& sink);
    bool drawSeen(const EntityTags& entity, const Look& look, Records followers,
                  const Container& container, Sink& sink);
    // Draw the block that the entity shows; `container` is that of the block's entities.
    bool drawDimension(const EntityTags& entity, const Container& container, Sink& sink);
    bool drawInsert(const EntityTags& entity, const Container& container, Sink& sink);
    bool drawBlock(const Block& block, const Container& container, Sink& sink);

    const Layer& layerOf(const Look& look, const Container& container) const;
    Color colorOf(const Look& look, const Container& container) const;
    std::size_t followersOf(Records records) const;

    const dxf::TagFile& m_file;
    const dxf::CodePage m_codePage;
    const dxf::TagSource m_source{m_file, m_codePage};
    const Tables m_tables;
    std::map<std::string, long, std::less<>> m_leftOut;
    long m_mostEntities;
    long m_budget = 0;
};
}  // namespace host::plot
