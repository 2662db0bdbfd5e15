#include "host/plot/scene.h"

#include <algorithm>
#include <cmath>

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

enum AttributeFlag
{
    invisibleFlag = 1,
    constantFlag = 2
};

// Tells whether entities of that kind show nothing in model space.
bool isSilent(std::string_view type)
{
    return type == "SEQEND" || type == "VERTEX" || type == "VIEWPORT";
}

// Tells whether the CAD program stores the look of such an entity in a block of its own.
bool hasOwnBlock(std::string_view type)
{
    return type.ends_with("DIMENSION");
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
      m_tables(file, m_codePage),
      m_mostEntities(mostFromBlocks + long(file.records(schema::section::entities).size()))
{
}

void Scene::draw(Sink& sink, const Progress& progress)
{
    const Place world{AcGeMatrix3d(), nullptr, black, 0};
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

void Scene::drawAll(Records records, const Place& place, Sink& sink)
{
    while (!records.empty() && spend())
    {
        records = records.subspan(drawOne(records, place, sink));
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
    if (m_file.typeName(records[0]) != "POLYLINE")
    {
        return 0;
    }
    std::size_t count = 0;
    while (count + 1 < records.size() && m_file.typeName(records[count + 1]) == "VERTEX")
    {
        ++count;
    }
    return count;
}

std::size_t Scene::drawOne(Records records, const Place& place, Sink& sink)
{
    const std::size_t followers = followersOf(records);
    const std::string_view type = m_file.typeName(records[0]);
    bool drawn = true;
    try
    {
        const EntityTags entity(m_file, records[0]);
        const bool elsewhere =
            place.depth == 0 && entity.integer(schema::entity::inPaperSpace) != 0;
        if (!isSilent(type) && !elsewhere && entity.integer(schema::entity::invisible) == 0)
        {
            drawn = drawSeen(entity, records.subspan(1, followers), place, sink);
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

const Layer& Scene::layerOf(const EntityTags& entity, const Place& place) const
{
    const std::string_view name = entity.text(schema::entity::layer);
    return place.layer != nullptr && (name == "0" || name.empty()) ? *place.layer
                                                                   : m_tables.layer(name);
}

Color Scene::colorOf(const EntityTags& entity, const Place& place) const
{
    const OwnColor own =
        ownColor(entity.integer(schema::entity::color, schema::entity::colorByLayer),
                 entity.has(schema::entity::trueColor)
                     ? std::optional(entity.integer(schema::entity::trueColor))
                     : std::nullopt);
    return own.byLayer ? layerOf(entity, place).color : own.byBlock ? place.color : own.color;
}

// Draws an entity unless its layer hides it. A layer that is off hides its entities, but only a
// frozen layer hides the whole contents of a block.
bool Scene::drawSeen(const EntityTags& entity, Records followers, const Place& place, Sink& sink)
{
    const Layer& layer = layerOf(entity, place);
    if (layer.frozen)
    {
        return true;
    }
    if (entity.type() == "INSERT" || hasOwnBlock(entity.type()))
    {
        return drawReference(entity, place, sink);
    }
    if (!layer.shown)
    {
        return true;
    }
    const Pen pen(sink, place.toWorld, colorOf(entity, place));
    if (entity.type() == "POLYLINE")
    {
        std::vector<EntityTags> vertices;
        for (const dxf::Record& record : followers)
        {
            vertices.emplace_back(m_file, record);
        }
        drawPolyline(entity, vertices, pen);
        return true;
    }
    if (entity.type() == "ATTDEF" && place.depth > 0)
    {
        if ((entity.integer(schema::attribute::flags) & (invisibleFlag | constantFlag)) ==
            constantFlag)
        {
            drawText(entity, m_codePage, pen);
        }
        return true;
    }
    return drawEntity(entity, m_codePage, pen);
}

bool Scene::drawReference(const EntityTags& entity, const Place& place, Sink& sink)
{
    Place inside = place;
    inside.layer = &layerOf(entity, place);
    inside.color = colorOf(entity, place);
    ++inside.depth;
    if (entity.type() == "INSERT")
    {
        return drawInsert(entity, inside, sink);
    }
    const Block* block = m_tables.block(entity.text(schema::insert::block));
    return block != nullptr && drawBlock(*block, inside, sink);
}

bool Scene::drawInsert(const EntityTags& insert, const Place& place, Sink& sink)
{
    const Block* block = m_tables.block(insert.text(schema::insert::block));
    if (block == nullptr)
    {
        return false;
    }
    const AcGeMatrix3d start =
        place.toWorld * Ocs(insert.normal()).matrix() *
        AcGeMatrix3d::translation(insert.point(schema::insert::position).asVector()) *
        AcGeMatrix3d::rotation(insert.radians(schema::insert::rotation), AcGeVector3d::kZAxis);
    const AcGeMatrix3d end =
        scaling(insert.real(schema::insert::scaleX, 1), insert.real(schema::insert::scaleY, 1),
                insert.real(schema::insert::scaleZ, 1)) *
        AcGeMatrix3d::translation(-block->base.asVector());
    const int columns = std::max(insert.integer(schema::insert::columns, 1), 1);
    const int rows = std::max(insert.integer(schema::insert::rows, 1), 1);
    bool drawn = true;
    for (int row = 0; row < rows; ++row)
    {
        for (int column = 0; column < columns; ++column)
        {
            if (!spend())
            {
                return true;
            }
            const AcGeVector3d shift(column * insert.real(schema::insert::columnSpacing),
                                     row * insert.real(schema::insert::rowSpacing), 0);
            Place cell = place;
            cell.toWorld = start * AcGeMatrix3d::translation(shift) * end;
            drawn = drawBlock(*block, cell, sink) && drawn;
        }
    }
    return drawn;
}

bool Scene::drawBlock(const Block& block, const Place& place, Sink& sink)
{
    if (place.depth > deepestBlock)
    {
        return false;
    }
    drawAll(block.records, place, sink);
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
