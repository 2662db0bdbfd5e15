// The model space of a drawing as shapes.
#pragma once

#include <map>
#include <string>

#include "gemat3d.h"
#include "host/dxf/progress.h"
#include "host/plot/entitytags.h"
#include "host/plot/sink.h"
#include "host/plot/tables.h"

namespace host::plot
{
class Scene
{
public:
    // The file is [borrowed]. Blocks that hold each other, and inserts of thousands of rows, end
    // after so many entities more than the file has itself.
    explicit Scene(const dxf::TagFile& file, long mostFromBlocks = 3'000'000);

    // Everything that is to be seen, in the drawing's order; on every call the same.
    void draw(Sink& sink, const Progress& progress = {});

    // After `draw`: what of it was not drawn, by kind and number, "1 IMAGE, 2 MESH"; empty when
    // nothing is left out.
    std::string leftOut() const;

private:
    // Where and how the entities of a space or block are drawn.
    struct Place
    {
        AcGeMatrix3d toWorld;
        const Layer* layer;  // of what is on layer 0 in a block; null in model space
        Color color;         // of what has its block's
        int depth;
    };

    using Records = std::span<const dxf::Record>;

    bool spend();  // whether one more may be drawn
    void drawAll(Records records, const Place& place, Sink& sink);
    // How many records it took.
    std::size_t drawOne(Records records, const Place& place, Sink& sink);
    bool drawSeen(const EntityTags& entity, Records followers, const Place& place, Sink& sink);
    bool drawReference(const EntityTags& entity, const Place& place, Sink& sink);
    bool drawInsert(const EntityTags& insert, const Place& place, Sink& sink);
    bool drawBlock(const Block& block, const Place& place, Sink& sink);

    const Layer& layerOf(const EntityTags& entity, const Place& place) const;
    Color colorOf(const EntityTags& entity, const Place& place) const;
    std::size_t followersOf(Records records) const;

    const dxf::TagFile& m_file;
    const dxf::CodePage m_codePage;
    const Tables m_tables;
    std::map<std::string, long, std::less<>> m_leftOut;
    long m_mostEntities;
    long m_budget = 0;
};
}  // namespace host::plot
