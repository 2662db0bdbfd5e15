#include "host/plot/scene.h"

#include <algorithm>
#include <cmath>

#include "host/basics/angle.h"
#include "host/dxf/schema/entities.h"
#include "host/dxf/schema/references.h"
#include "host/geometry/ocs.h"
#include "host/plot/entities.h"
#include "host/plot/pen.h"

namespace host::plot
{
namespace
{
const int deepestBlock = 64;

// Tells whether entities of that kind show nothing in model space.
bool isSilent(std::string_view type)
{
    return type == schema::sequenceend::table.type || type == schema::vertex::table.type ||
           type == schema::paperViewport;
}

// Tells whether the CAD program stores the look of such an entity in a block of its own.
bool hasOwnBlock(std::string_view type)
{
    return type.ends_with(schema::dimension::table.type);
}

AcGeMatrix3d scaling(double x, double y, double z)
{
    AcGeMatrix3d matrix;
    matrix.entry[0][0] = x;
    matrix.entry[1][1] = y;
    matrix.entry[2][2] = z;
    return matrix;
}
}  // namespace

Scene::Scene(const dxf::TagFile& file, long mostFromBlocks)
    : m_file(file),
      m_codePage(file.release(), file.codePageName()),
      m_tables(m_source),
      m_mostEntities(mostFromBlocks + long(file.records(schema::section::entities).size()))
{
}

void Scene::draw(Sink& sink, const Progress& progress)
{
    const Container world{AcGeMatrix3d(), nullptr, black, 0};
    const Records all = m_file.records(schema::section::entities);
    m_leftOut.clear();
    m_budget = m_mostEntities;
    for (Records rest = all; !rest.empty() && spend();)
    {
        rest = rest.subspan(drawOne(rest, world, sink));
        if (progress)
        {
            progress(1 - double(rest.size()) / double(all.size()));
        }
    }
}

void Scene::drawAll(Records records, const Container& container, Sink& sink)
{
    while (!records.empty() && spend())
    {
        records = records.subspan(drawOne(records, container, sink));
    }
}

bool Scene::spend()
{
    if (m_budget == 0)
    {
        m_leftOut["entity of a drawing too large"] = 1;
        return false;
    }
    --m_budget;
    return true;
}

std::size_t Scene::followersOf(Records records) const
{
    if (m_file.typeName(records[0]) != schema::polyline::table.type)
    {
        return 0;
    }
    std::size_t count = 0;
    while (count + 1 < records.size() &&
           m_file.typeName(records[count + 1]) == schema::vertex::table.type)
    {
        ++count;
    }
    return count;
}

std::size_t Scene::drawOne(Records records, const Container& container, Sink& sink)
{
    const std::size_t followers = followersOf(records);
    const std::string_view type = m_file.typeName(records[0]);
    bool drawn = true;
    try
    {
        const EntityTags entity(m_source, records[0]);
        const Look look = entity.read(schema::entity::look);
        const bool elsewhere = container.depth == 0 && look.inPaperSpace != 0;
        if (!isSilent(type) && !elsewhere && look.invisible == 0)
        {
            drawn = drawSeen(entity, look, records.subspan(1, followers), container, sink);
        }
    }
    catch (const dxf::Error&)
    {
        drawn = false;
    }
    if (!drawn)
    {
        ++m_leftOut[std::string(type)];
    }
    return 1 + followers;
}

const Layer& Scene::layerOf(const Look& look, const Container& container) const
{
    const std::string_view name = trimmed(look.layer);
    return container.layer != nullptr && (name == "0" || name.empty()) ? *container.layer
                                                                       : m_tables.layer(name);
}

Color Scene::colorOf(const Look& look, const Container& container) const
{
    const OwnColor own = ownColor(look.color, look.trueColor);
    return own.byLayer ? layerOf(look, container).color : own.byBlock ? container.color : own.color;
}

// Draws an entity unless its layer hides it. A layer that is off hides its entities, but only a
// frozen layer hides the whole contents of a block.
bool Scene::drawSeen(const EntityTags& entity, const Look& look, Records followers,
                     const Container& container, Sink& sink)
{
    const Layer& layer = layerOf(look, container);
    if (layer.frozen)
    {
        return true;
    }
    const bool isInsert = entity.type() == schema::insert::table.type;
    if (isInsert || hasOwnBlock(entity.type()))
    {
        const Container inside{container.toWorld, &layer, colorOf(look, container),
                               container.depth + 1};
        return isInsert ? drawInsert(entity, inside, sink) : drawDimension(entity, inside, sink);
    }
    if (!layer.shown)
    {
        return true;
    }
    const Pen pen(sink, container.toWorld, colorOf(look, container));
    if (entity.type() == schema::polyline::table.type)
    {
        std::vector<schema::vertex::Shape> vertices;
        for (const dxf::Record& record : followers)
        {
            vertices.push_back(EntityTags(m_source, record).read(schema::vertex::shape));
        }
        drawPolyline(entity, vertices, pen);
        return true;
    }
    if (entity.type() == schema::attribute::definition.type && container.depth > 0)
    {
        drawConstantAttribute(entity, pen);
        return true;
    }
    return drawEntity(entity, pen);
}

bool Scene::drawDimension(const EntityTags& entity, const Container& container, Sink& sink)
{
    const Block* block = m_tables.block(entity.read(schema::dimension::table).block);
    return block != nullptr && drawBlock(*block, container, sink);
}

bool Scene::drawInsert(const EntityTags& entity, const Container& container, Sink& sink)
{
    const schema::insert::Insert insert = entity.read(schema::insert::table);
    const Block* block = m_tables.block(insert.block);
    if (block == nullptr)
    {
        return false;
    }
    const AcGeMatrix3d start =
        container.toWorld * Ocs(insert.normal).matrix() *
        AcGeMatrix3d::translation(insert.position.asVector()) *
        AcGeMatrix3d::rotation(toRadians(insert.rotation), AcGeVector3d::kZAxis);
    const AcGeMatrix3d end = scaling(insert.scaleX, insert.scaleY, insert.scaleZ) *
                             AcGeMatrix3d::translation(-block->base.asVector());
    bool drawn = true;
    for (int row = 0; row < std::max(insert.rows, 1); ++row)
    {
        for (int column = 0; column < std::max(insert.columns, 1); ++column)
        {
            if (!spend())
            {
                return true;
            }
            const AcGeVector3d shift(column * insert.columnSpacing, row * insert.rowSpacing, 0);
            Container cell = container;
            cell.toWorld = start * AcGeMatrix3d::translation(shift) * end;
            drawn = drawBlock(*block, cell, sink) && drawn;
        }
    }
    return drawn;
}

bool Scene::drawBlock(const Block& block, const Container& container, Sink& sink)
{
    if (container.depth > deepestBlock)
    {
        return false;
    }
    drawAll(block.records, container, sink);
    return true;
}

std::string Scene::leftOut() const
{
    std::string list;
    for (const auto& [type, count] : m_leftOut)
    {
        list += (list.empty() ? "" : ", ") + std::to_string(count) + " " + type;
    }
    return list;
}
}  // namespace host::plot
