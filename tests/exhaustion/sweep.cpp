// Opens and saves drawings while memory or the disk runs out, at every possible moment. A drawing
// is read or refused in one line, and the old file is whole until the new one has its name.
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "dbents.h"
#include "host/database/core.h"
#include "host/dxf/drawingfile.h"
#include "host/plot/plot.h"
#include "tests/exhaustion/run.h"
#include "tests/exhaustion/scarcity.h"
#include "tests/support/scratchfolder.h"

namespace fs = std::filesystem;

namespace
{
long tried = 0;
long failed = 0;

void expect(bool holds, const std::string& what)
{
    if (!holds)
    {
        ++failed;
        std::printf("FAILED %s\n", what.c_str());
    }
}

std::string contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

bool isOneLineAbout(const std::string& line, const fs::path& path)
{
    return line.starts_with(path.string() + ": ") && line.find('\n') == line.npos;
}

// Deletes the other files in the folder of the path and returns their number.
int deleteOthers(const fs::path& path)
{
    int count = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(path.parent_path()))
    {
        count += entry.path() != path && fs::remove(entry.path()) ? 1 : 0;
    }
    return count;
}

scarcity::Refused refused;

// A way in which a resource runs out.
struct Mode
{
    const char* name;
    scarcity::Of what;
    bool forGood;
    int error;
    bool mayFail;
};

const Mode modes[] = {
    {"memory, once", scarcity::Of::memory, false, ENOMEM, true},
    {"memory, from then on", scarcity::Of::memory, true, ENOMEM, true},
    {"a full disk", scarcity::Of::files, false, ENOSPC, true},
    {"a full disk for good", scarcity::Of::files, true, ENOSPC, true},
    {"no space left", scarcity::Of::space, true, ENOSPC, true},
    {"a broken disk", scarcity::Of::files, false, EIO, true},
    {"a broken disk for good", scarcity::Of::files, true, EIO, true},
    {"reads and writes cut", scarcity::Of::fileLength, false, 0, false},
    {"all of them cut", scarcity::Of::fileLength, true, 0, false},
};

// Calls `attempt` with every request refused in turn, until a call makes no further request.
void sweep(const Mode& mode, const std::string& job,
           const std::function<std::string(bool& done)>& attempt, const fs::path& path,
           const std::function<void(bool done)>& check)
{
    long number = 1;
    for (bool oneWas = true; oneWas; ++number)
    {
        bool done = false;
        scarcity::start(mode.what, number, mode.forGood, mode.error);
        std::string said;
        try
        {
            said = attempt(done);
        }
        catch (const std::bad_alloc&)  // the program itself reports it in one line
        {
            oneWas = scarcity::stop();
            said = path.string() + ": memory ran out while it was told";
        }
        oneWas = scarcity::stop();
        tried += oneWas ? 1 : 0;
        const std::string where = job + ", " + mode.name + ", request " + std::to_string(number);
        expect(done || isOneLineAbout(said, path), where + ": said \"" + said + '"');
        expect(done || (oneWas && mode.mayFail), where + ": failed: " + said);
        check(done);
    }
}

// Checks that a drawing that is read is the whole drawing: saved elsewhere it is the same again.
void sweepOpening(const fs::path& path, const fs::path& elsewhere)
{
    std::unique_ptr<AcDbDatabase> database;
    const auto saved = [&]
    {
        const host::Result<> result = host::saveDrawing(*database, elsewhere.string());
        return result ? contents(elsewhere) : result.failure().line;
    };
    database = std::move(host::openDrawing(path.string())->database);
    const std::string whole = saved();
    for (const Mode& mode : modes)
    {
        const std::string job = "opening " + path.filename().string();
        const auto open = [&](bool& done)
        {
            host::Result<host::OpenedDrawing> drawing = host::openDrawing(path.string());
            done = bool(drawing);
            database = done ? std::move(drawing->database) : nullptr;
            return done ? std::string() : drawing.failure().line;
        };
        const auto check = [&](bool done)
        { expect(!done || saved() == whole, job + ", " + mode.name + ": not the whole drawing"); };
        sweep(mode, job, open, path, check);
    }
}

// Returns the drawing with one more line.
std::unique_ptr<AcDbDatabase> changed(const fs::path& path)
{
    auto database = std::move(host::openDrawing(path.string())->database);
    AcDbBlockTable* blocks = nullptr;
    AcDbBlockTableRecord* space = nullptr;
    database->getBlockTable(blocks, AcDb::kForRead);
    blocks->getAt(ACDB_MODEL_SPACE, space, AcDb::kForWrite);
    auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1.5, 2.5, 0));
    space->appendAcDbEntity(line);
    line->close();
    space->close();
    blocks->close();
    return database;
}

// Saves over the old file, and once as a plot under a name that ends in .png.
void sweepSaving(const fs::path& original, const fs::path& target)
{
    const std::string before = "an older file";
    const auto database = changed(original);
    const bool plots = target.extension() == ".png";
    const auto write = [&]
    {
        if (plots)
        {
            const auto plotted = host::plotDrawing(*database, target.string());
            return plotted ? std::string() : plotted.failure().line;
        }
        const host::Result<> saved = host::saveDrawing(*database, target.string());
        return saved ? std::string() : saved.failure().line;
    };
    std::ofstream(target) << before;
    expect(write().empty(), "saving without a fault");
    const std::string after = contents(target);
    for (const Mode& mode : modes)
    {
        // Drawing alone makes hundreds of thousands of requests for memory, many of them in the
        // library.
        if (plots && mode.what == scarcity::Of::memory)
        {
            continue;
        }
        std::ofstream(target) << before;
        const auto save = [&](bool& done)
        {
            const std::string error = write();
            done = error.empty();
            return error;
        };
        const auto check = [&](bool done)
        {
            const std::string now = contents(target);
            expect(now == (done ? after : before) || (!done && now == after),
                   std::string(mode.name) + ": the file is neither the old nor the new one");
            expect(deleteOthers(target) == 0 || refused.deletion,
                   std::string(mode.name) + ": other files are left");
            refused.deletion = false;
            std::ofstream(target) << before;
        };
        sweep(mode, (plots ? "plotting " : "saving ") + original.filename().string(), save, target,
              check);
    }
}
}  // namespace

// With the argument N it refuses only every Nth request of whole runs.
int main(int count, char** arguments)
{
    const int everyFewth = count > 1 ? std::atoi(arguments[1]) : 1;
    if (everyFewth < 1)
    {
        std::fprintf(stderr, "usage: exhaustion_sweep [N]\n");
        return 2;
    }
    const fs::path folder = support::scratchFolder();
    // The font files are not ours. A drawing with texts makes the library read them before calls
    // fail.
    const fs::path drawings = fs::path(TESTS_DIR) / "golden" / "drawings";
    const std::string withTexts = (drawings / "r12-cyrillic.dxf").string();
    expect(bool(host::plotDrawing(*host::openDrawing(withTexts)->database,
                                  (folder / "plot.png").string())),
           "plotting without a fault");
    const Tried runs = tryRuns(folder, everyFewth);  // first: a small process is copied quickly
    fs::remove_all(folder);
    fs::create_directory(folder);
    scarcity::noteRefusedIn(&refused);
    for (const char* name : {"entities-only.dxf", "r12-cyrillic.dxf", "plan-binary.dxf"})
    {
        const fs::path drawing = drawings / name;
        sweepOpening(drawing, folder / "saved.dxf");
        sweepSaving(drawing, folder / "saved.dxf");
        fs::remove(folder / "saved.dxf");
        sweepSaving(drawing, folder / "plot.png");
        fs::remove(folder / "plot.png");
    }
    tried += runs.requests;
    failed += runs.failed;
    fs::remove_all(folder);
    std::printf("%ld requests refused\n%ld passed, %ld failed\n", tried, tried - failed, failed);
    return failed == 0 && tried > 0 ? 0 : 1;
}
