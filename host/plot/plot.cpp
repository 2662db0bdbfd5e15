#include "host/plot/plot.h"

#include <array>
#include <filesystem>

#include "host/database/drawing.h"
#include "host/database/viewframe.h"
#include "host/dxf/filesource.h"
#include "host/dxf/save.h"
#include "host/dxf/outputfile.h"
#include "host/dxf/wholefile.h"
#include "host/plot/paper.h"
#include "host/plot/scene.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
using namespace plot;

std::optional<FileKind> kindOf(const std::string& path)
{
    const std::array<std::pair<const char*, FileKind>, 3> kinds{
        {{".png", FileKind::png}, {".pdf", FileKind::pdf}, {".svg", FileKind::svg}}};
    std::string extension = pathOf(path).extension().string();
    for (char& letter : extension)
    {
        letter = letter >= 'A' && letter <= 'Z' ? char(letter - 'A' + 'a') : letter;
    }
    for (const auto& [name, kind] : kinds)
    {
        if (extension == name)
        {
            return kind;
        }
    }
    return std::nullopt;
}

void write(const dxf::Edits& edits, const dxf::TagWriter::Drain& drain)
{
    dxf::TagWriter writer(drain, edits.file().style());
    edits.write(writer);
    writer.flush();
}

// Returns the drawing's file as saving would write it now. The first of two writes finds its size:
// a text that grew would take the memory of the largest drawings twice.
dxf::TagFile asSaved(AcDbDatabase& database, const Progress& progress)
{
    dxf::WholeFile file{};
    const auto take = [&file](std::string_view bytes)
    {
        bytes.copy(file.bytes.get() + file.size, bytes.size());
        file.size += bytes.size();
    };
    dxf::withChanges(coreOf(database),
                     [&](const dxf::Edits& edits)
                     {
                         std::size_t size = 0;
                         write(edits, [&size](std::string_view bytes) { size += bytes.size(); });
                         file.bytes = std::make_unique_for_overwrite<char[]>(size + 1);
                         write(edits, take);
                     });
    return dxf::TagFile::fromBytes(std::move(file), "drawing", progress);
}

Result<std::string> plotted(Scene& scene, const View& view, FileKind kind, const Progress& progress)
{
    const AcGeMatrix3d toView = viewFrame(view).inverse();
    Extents extents(toView);
    scene.draw(extents, partOf(progress, 0, 0.4));
    Paper paper(kind, toView, extents.box());
    scene.draw(paper, partOf(progress, 0.4, 1));
    return paper.finish();
}
}  // namespace

bool isPlotFile(const std::string& path)
{
    return kindOf(path).has_value();
}

Result<Plotted> plotDrawing(AcDbDatabase& database, const std::string& path,
                            const Progress& progress)
{
    const auto kind = kindOf(path);
    if (!kind)
    {
        return Failure{path + ": expected a name that ends in .png, .pdf or .svg"};
    }
    if (!canWrite(*kind))
    {
        return Failure{path + ": arxhost draws PDF and SVG on Linux only; PNG can be drawn"};
    }
    try
    {
        const dxf::TagFile file = asSaved(database, partOf(progress, 0, 0.2));
        Scene scene(file);
        const Result<std::string> bytes =
            plotted(scene, stateOf(database).view, *kind, partOf(progress, 0.2, 1));
        if (!bytes)
        {
            return Failure{path + ": cannot be drawn: " + bytes.failure().line};
        }
        const Result<> written = writeOutputFile(path, *bytes);
        return written ? Result<Plotted>(Plotted{scene.leftOut()}) : written.failure();
    }
    catch (const std::bad_alloc&)
    {
        return Failure{path + ": cannot be drawn: not enough memory"};
    }
    catch (const std::exception& error)
    {
        return Failure{error.what()};
    }
}
}  // namespace host
