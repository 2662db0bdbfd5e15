#include "host/dxf/entitywriter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "host/database/drawing.h"
#include "host/database/entitystyle.h"
#include "host/database/packing.h"
#include "host/database/polylinevertices.h"
#include "host/geometry/ocs.h"

namespace host::dxf
{
// An R12 drawing may do without handles; then the new entities have none either.
EntityWriter::EntityWriter(DatabaseCore& core, const FileSource& source)
    : m_core(core),
      m_codePage(source.codePage),
      m_style(source.file.style()),
      m_release(source.file.release()),
      m_handles(source.file.hasHandles())
{
}

void EntityWriter::writeHandle(std::uint64_t handle, TagWriter& writer) const
{
    if (m_handles)
    {
        writer.handle(5, handle);
    }
}

// A space that the file does not name as an object is nobody's owner.
void EntityWriter::writeOwner(std::uint64_t handle, TagWriter& writer) const
{
    if (m_release.ownership && handle != 0)
    {
        writer.handle(330, handle);
    }
}

void EntityWriter::writeSubclass(std::string_view name, TagWriter& writer) const
{
    if (m_release.objects)
    {
        writer.text(100, name);
    }
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
    // Many lines in a row share one style; those of another owner have no form here.
    std::uint32_t style = UINT32_MAX;
    const RecordForm* form = nullptr;
    for (std::size_t i = 0; i < m_core.stubs.size(); ++i)
    {
        const AcDbStub& stub = m_core.stubs[i];
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
            form = m_core.lineStyles[style].owner == owner ? &lineForm(style) : nullptr;
        }
        if (form != nullptr)
        {
            writer.record(*form, stub.handle, stub.line);
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
        const AcGePoint3d a = line->startPoint();
        const AcGePoint3d b = line->endPoint();
        writer.record(makeLineForm(EntityStyle::styleOf(*line)), stub.handle,
                      {a.x, a.y, a.z, b.x, b.y, b.z});
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

const RecordForm& EntityWriter::lineForm(std::uint32_t style)
{
    const auto found = m_lineForms.find(style);
    return found != m_lineForms.end()
               ? found->second
               : m_lineForms.emplace(style, makeLineForm(m_core.lineStyles[style])).first->second;
}

RecordForm EntityWriter::makeLineForm(const LineStyle& style)
{
    std::string bytes;
    TagWriter writer([&bytes](std::string_view written) { bytes += written; }, m_style);
    const auto cut = [&]
    {
        writer.flush();
        return std::exchange(bytes, {});
    };
    RecordForm form;
    form.hasHandle = m_handles;
    writer.text(0, "LINE");
    if (m_handles)
    {
        writer.codeLine(5);
        form.head = cut();
        writer.lineEnd();
    }
    writeCommon(style, writer);
    writeSubclass("AcDbLine", writer);
    writer.codeLine(10);
    form.common = cut();
    std::ranges::transform(std::array{20, 30, 11, 21, 31}, form.gaps,
                           [&](int code)
                           {
                               writer.lineEnd();
                               writer.codeLine(code);
                               return RecordForm::Gap(cut());
                           });
    writer.lineEnd();
    writeNormal(style.normal, writer);
    form.tail = cut();
    return form;
}

std::string EntityWriter::nameOf(const AcDbStub* record) const
{
    return m_codePage.encode(recordName(AcDbObjectId(const_cast<AcDbStub*>(record))));
}

void EntityWriter::writeReactors(const LineStyle& style, TagWriter& writer)
{
    const std::vector<AcDbStub*>& reactors = m_core.reactorLists[style.reactors];
    const auto alive = [](const AcDbStub* reactor) { return !reactor->erased(); };
    if (!m_release.objects || std::none_of(reactors.begin(), reactors.end(), alive))
    {
        return;
    }
    writer.text(102, "{ACAD_REACTORS");
    for (const AcDbStub* reactor : reactors)
    {
        if (alive(reactor))
        {
            writer.handle(330, reactor->handle);
        }
    }
    writer.text(102, "}");
}

void EntityWriter::writeCommon(const LineStyle& style, TagWriter& writer)
{
    writeReactors(style, writer);
    writeOwner(style.owner->handle, writer);
    writeSubclass("AcDbEntity", writer);
    writer.text(8, nameOf(style.layer));
    const std::string linetype = nameOf(style.linetype);
    if (m_release.objects || linetype != "ByLayer")  // which R12 has no record for
    {
        writer.text(6, linetype);
    }
    if (style.color != 256)
    {
        writer.integer(62, style.color);
    }
    writeLater(style, writer);
}

// What R12 does not know yet.
void EntityWriter::writeLater(const LineStyle& style, TagWriter& writer) const
{
    if (!m_release.objects)
    {
        return;
    }
    if (style.linetypeScale != 1)
    {
        writer.real(48, style.linetypeScale);
    }
    if (style.invisible)
    {
        writer.integer(60, 1);
    }
    if (m_release.ownership && style.lineWeight != AcDb::kLnWtByLayer)
    {
        writer.integer(370, style.lineWeight);
    }
}

void writeNormal(const AcGeVector3d& normal, TagWriter& writer)
{
    if (normal.x != 0 || normal.y != 0 || normal.z != 1)
    {
        writer.point(210, normal.x, normal.y, normal.z);
    }
}

namespace
{
void writeRealUnless(double usual, int code, double value, TagWriter& writer)
{
    if (value != usual)
    {
        writer.real(code, value);
    }
}

// Angles are kept in radians and written in degrees from 0 up to 360.
double degrees(double radians)
{
    const double angle = std::fmod(radians * 180 / M_PI, 360);
    return angle < 0 ? angle + 360 : angle;
}

void writePoint(int code, const AcGePoint3d& point, TagWriter& writer)
{
    writer.point(code, point.x, point.y, point.z);
}
}  // namespace

void EntityWriter::writeText(const AcDbText& text, TagWriter& writer)
{
    const Ocs plane(text.normal());
    writer.text(0, "TEXT");
    writeHandle(text.objectId().stub()->handle, writer);
    writeCommon(EntityStyle::styleOf(text), writer);
    writeSubclass("AcDbText", writer);
    writePoint(10, plane.toObject(text.position()), writer);
    writer.real(40, text.height());
    writer.text(1, m_codePage.encode(text.textStringConst()));
    writeRealUnless(0, 50, degrees(text.rotation()), writer);
    writeRealUnless(1, 41, text.widthFactor(), writer);
    writeRealUnless(0, 51, degrees(text.oblique()), writer);
    if (!text.textStyle().isNull())
    {
        writer.text(7, nameOf(text.textStyle().stub()));
    }
    if (text.horizontalMode() != AcDb::kTextLeft)
    {
        writer.integer(72, text.horizontalMode());
    }
    if (text.horizontalMode() != AcDb::kTextLeft || text.verticalMode() != AcDb::kTextBase)
    {
        writePoint(11, plane.toObject(text.alignmentPoint()), writer);
    }
    writeNormal(text.normal(), writer);
    writeSubclass("AcDbText", writer);
    if (text.verticalMode() != AcDb::kTextBase)
    {
        writer.integer(73, text.verticalMode());
    }
}

void EntityWriter::writePolyline(const AcDb2dPolyline& polyline, TagWriter& writer)
{
    const LineStyle style = EntityStyle::styleOf(polyline);
    const PolylineVertices& vertices = PolylineVertices::of(polyline);
    writer.text(0, "POLYLINE");
    writeHandle(polyline.objectId().stub()->handle, writer);
    writeCommon(style, writer);
    writeSubclass("AcDb2dPolyline", writer);
    writer.integer(66, 1);
    writer.point(10, 0, 0, polyline.elevation());
    writer.integer(70,
                   (polyline.isClosed() ? 1 : 0) | (polyline.isLinetypeGenerationOn() ? 128 : 0));
    writeRealUnless(0, 40, polyline.defStartWidth(), writer);
    writeRealUnless(0, 41, polyline.defEndWidth(), writer);
    writeNormal(polyline.normal(), writer);
    for (const AcDb2dVertex* vertex : vertices.vertices())
    {
        writer.text(0, "VERTEX");
        writeHandle(vertex->objectId().stub()->handle, writer);
        writeCommon(EntityStyle::styleOf(*vertex), writer);
        writeSubclass("AcDbVertex", writer);
        writeSubclass("AcDb2dVertex", writer);
        writePoint(10, vertex->position(), writer);
        writer.integer(70, 0);
    }
    writer.text(0, "SEQEND");
    writeHandle(vertices.sequenceEnd->handle, writer);
    writeOwner(polyline.objectId().stub()->handle, writer);
    writeSubclass("AcDbEntity", writer);
    writer.text(8, nameOf(style.layer));
}
}  // namespace host::dxf
