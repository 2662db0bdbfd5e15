#include "host/dxf/entitywriter.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "host/basics/angle.h"
#include "host/database/drawing.h"
#include "host/database/entitystyle.h"
#include "host/database/packing.h"
#include "host/database/polylinevertices.h"
#include "host/dxf/lineform.h"
#include "host/geometry/ocs.h"

namespace host::dxf
{
// An R12 drawing may lack handles. Its new entities must then have no handles either.
EntityWriter::EntityWriter(DatabaseCore& core, const FileSource& source)
    : m_core(core),
      m_form{source.file.release(), source.codePage},
      m_style(source.file.style()),
      m_handles(source.file.hasHandles())
{
}

void EntityWriter::writeEntitiesOf(const AcDbStub* owner, TagWriter& writer)
{
    const AcDbStub* last = nullptr;
    try
    {
        writeAll(owner, writer, last);
    }
    catch (const std::domain_error& noTagCanHoldIt)
    {
        throw std::domain_error("the " + describe(*last) + ": " + noTagCanHoldIt.what());
    }
}

void EntityWriter::writeAll(const AcDbStub* owner, TagWriter& writer, const AcDbStub*& last)
{
    // Many consecutive lines share one style. A style of another owner has no form here.
    std::uint32_t style = UINT32_MAX;
    const LineForms* forms = nullptr;
    for (const AcDbStub& stub : m_core.objects())
    {
        if (stub.erased())
        {
            continue;
        }
        last = &stub;
        if (!stub.packed())
        {
            writeUnpacked(stub, owner, writer);
            continue;
        }
        if (stub.style != style)
        {
            style = stub.style;
            forms = m_core.objects().style(style).owner == owner ? &lineForms(stub) : nullptr;
        }
        if (forms != nullptr)
        {
            const auto [start, end] = StubArena::endsOf(&stub);
            const double ends[] = {start.x, start.y, start.z, end.x, end.y, end.z};
            const bool isFlat = start.z == forms->elevation && end.z == forms->elevation;
            writer.record(isFlat ? forms->flat : forms->any, stub.handle(), ends);
        }
    }
}

void EntityWriter::writeUnpacked(const AcDbStub& stub, const AcDbStub* owner, TagWriter& writer)
{
    if (ownerOf(&stub) != owner)
    {
        return;
    }
    if (const AcDbLine* line = AcDbLine::cast(stub.object))
    {
        writeLine(*line, writer);
    }
    else if (const AcDbText* text = AcDbText::cast(stub.object))
    {
        writeText(*text, writer);
    }
    else if (const AcDb2dPolyline* polyline = AcDb2dPolyline::cast(stub.object))
    {
        writePolyline(*polyline, writer);
    }
}

const EntityWriter::LineForms& EntityWriter::lineForms(const AcDbStub& stub)
{
    const auto found = m_lineForms.find(stub.style);
    return found != m_lineForms.end()
               ? found->second
               : m_lineForms
                     .emplace(stub.style, makeLineForms(m_core.objects().style(stub.style),
                                                        StubArena::endsOf(&stub).start.z))
                     .first->second;
}

EntityWriter::LineForms EntityWriter::makeLineForms(const LineStyle& style, double elevation)
{
    schema::line::Line line;
    fillCommon(line, style, 0);
    line.normal = style.normal;
    return {elevation, lineFormOf(line, m_form, m_style, m_handles, elevation),
            lineFormOf(line, m_form, m_style, m_handles)};
}

std::wstring EntityWriter::nameOf(const AcDbStub* record)
{
    return recordName(AcDbObjectId(const_cast<AcDbStub*>(record)));
}

void EntityWriter::fillCommon(schema::entity::Entity& entity, const LineStyle& style,
                              std::uint64_t handle) const
{
    entity.handle = m_handles ? handle : 0;
    for (const AcDbStub* reactor : m_core.objects().reactors(style.reactors))
    {
        if (!reactor->erased())
        {
            entity.reactors.push_back(reactor->handle());
        }
    }
    entity.owner = style.owner->handle();
    entity.layer = nameOf(style.layer);
    entity.linetype = nameOf(style.linetype);
    entity.color = style.color;
    entity.linetypeScale = style.linetypeScale;
    entity.invisible = style.invisible ? 1 : 0;
    entity.lineWeight = style.lineWeight;
}

void EntityWriter::fillCommon(schema::entity::Entity& entity, const AcDbEntity& from) const
{
    fillCommon(entity, EntityStyle::styleOf(from), from.objectId().stub()->handle());
}

namespace
{
// The database keeps angles in radians; files state them in degrees from 0 up to 360.
double degrees(double radians)
{
    const double angle = std::fmod(toDegrees(radians), 360);
    return angle < 0 ? angle + 360 : angle;
}
}  // namespace

void EntityWriter::writeLine(const AcDbLine& line, TagWriter& writer)
{
    schema::line::Line made;
    fillCommon(made, line);
    made.start = line.startPoint();
    made.end = line.endPoint();
    made.normal = line.normal();
    writeRecord(writer, schema::line::table, made, m_form);
}

void EntityWriter::writeText(const AcDbText& text, TagWriter& writer)
{
    const Ocs plane(text.normal());
    schema::text::Text made;
    fillCommon(made, text);
    made.position = plane.toObject(text.position());
    made.height = text.height();
    made.contents = text.textStringConst();
    made.rotation = degrees(text.rotation());
    made.widthFactor = text.widthFactor();
    made.oblique = degrees(text.oblique());
    made.style = text.textStyle().isNull() ? L"" : nameOf(text.textStyle().stub());
    made.horizontalMode = text.horizontalMode();
    made.verticalMode = text.verticalMode();
    if (text.horizontalMode() != AcDb::kTextLeft || text.verticalMode() != AcDb::kTextBase)
    {
        made.alignment = plane.toObject(text.alignmentPoint());
    }
    made.normal = text.normal();
    writeRecord(writer, schema::text::table, made, m_form);
}

void EntityWriter::writePolyline(const AcDb2dPolyline& polyline, TagWriter& writer)
{
    schema::polyline::Polyline made;
    fillCommon(made, polyline);
    made.elevation.z = polyline.elevation();
    made.flags = polyline.isClosed() ? schema::polyline::closedFlag : 0;
    made.flags |= polyline.isLinetypeGenerationOn() ? schema::polyline::linetypeGenerationFlag : 0;
    made.startWidth = polyline.defStartWidth();
    made.endWidth = polyline.defEndWidth();
    made.normal = polyline.normal();
    writeRecord(writer, schema::polyline::table, made, m_form);
    const PolylineVertices& vertices = PolylineVertices::of(polyline);
    for (const AcDb2dVertex* vertex : vertices.vertices())
    {
        writeVertex(*vertex, writer);
    }
    schema::sequenceend::SequenceEnd end;
    end.handle = m_handles ? vertices.sequenceEnd->handle() : 0;
    end.owner = polyline.objectId().stub()->handle();
    end.layer = made.layer;
    writeRecord(writer, schema::sequenceend::table, end, m_form);
}

void EntityWriter::writeVertex(const AcDb2dVertex& vertex, TagWriter& writer)
{
    schema::vertex::Vertex made;
    fillCommon(made, vertex);
    made.position = vertex.position();
    writeRecord(writer, schema::vertex::table, made, m_form);
}
}  // namespace host::dxf
