#include "host/plot/plot.h"

#include <array>
#include <filesystem>

#include "host/database/drawing.h"
#include "host/database/viewframe.h"
#include "host/dxf/filesource.h"
#include "host/dxf/save.h"
#include "host/dxf/outputfile.h"
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

// Returns the drawing's file as saving would write it now.
dxf::TagFile asSaved(AcDbDatabase& database, const Progress& progress)
{
    std::string text;
    dxf::withChanges(coreOf(database),
                     [&text](const dxf::Edits& edits)
                     {
                         dxf::TagWriter writer([&text](std::string_view bytes) { text += bytes; },
                                               edits.file().style());
                         edits.write(writer);
                         writer.flush();
                     });
    return dxf::TagFile::fromText(text, "drawing", progress);
}

Result<std::string> plotted(Scene& scene, const View& view, FileKind kind, const Progress& progress)
{
    const AcGeMatrix3d toView = viewFrame(view).inverse();
    Extents extents(toView);
    scene.draw(extents, partOf(progress, 0, 0.4));
    Paper paper(kind, toView, extents.window());
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
