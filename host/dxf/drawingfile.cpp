#include "host/dxf/drawingfile.h"

#include <new>

#include "host/dxf/emptydrawing.h"
#include "host/dxf/error.h"
#include "host/dxf/filesource.h"
#include "host/dxf/load.h"
#include "host/dxf/save.h"

namespace host
{
Result<OpenedDrawing> openDrawing(const std::string& path, const Progress& progress)
{
    try
    {
        auto database = std::make_unique<AcDbDatabase>();
        dxf::load(coreOf(*database), dxf::TagFile::read(path, progress));
        const std::string repairs = dxf::sourceOf(coreOf(*database)).file.repairs();
        return OpenedDrawing{std::move(database), repairs};
    }
    catch (const dxf::Error& error)
    {
        return Failure{error.what()};
    }
    catch (const std::bad_alloc&)
    {
        return Failure{path + ": cannot be opened: not enough memory"};
    }
}

std::unique_ptr<AcDbDatabase> newDrawing()
{
    auto database = std::make_unique<AcDbDatabase>();
    dxf::load(coreOf(*database), dxf::TagFile::fromText(dxf::emptyDrawing(), "new drawing"));
    return database;
}

std::vector<std::string> lossesOnSaving(const AcDbDatabase& database)
{
    return dxf::lossesOnSaving(coreOf(database));
}

std::uint64_t digestOfChanges(AcDbDatabase& database)
{
    return dxf::digestOfChanges(coreOf(database));
}

Result<> saveDrawing(AcDbDatabase& database, const std::string& path, const Progress& progress)
{
    try
    {
        dxf::save(coreOf(database), path, progress);
        return Done{};
    }
    catch (const std::bad_alloc&)
    {
        return Failure{path + ": cannot be saved: not enough memory"};
    }
    catch (const std::exception& error)
    {
        return Failure{error.what()};
    }
}
}  // namespace host
