#include "host/program/job.h"

#include <cstdlib>

#include "host/dialogs/modalloop.h"
#include "host/documents/documentmanager.h"
#include "host/dxf/drawingfile.h"
#include "host/dxf/outputfile.h"
#include "host/editor/commands.h"
#include "host/editor/editor.h"
#include "host/editor/hostcommands.h"
#include "host/pictures/dialogpicture.h"
#include "host/plot/plot.h"
#include "host/program/longwork.h"
#include "host/program/plotcommand.h"
#include "host/program/saveas.h"
#include "host/program/unsaved.h"
#include "host/runtime/linker.h"
#include "host/runtime/locale.h"
#include "host/basics/scoped.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
// Checks the output files before the run, so that a wrong name does not cost the work of the run.
bool canBeWritten(const Options& options, FrontEnd& frontEnd)
{
    for (const std::string& path : {options.save, options.plot, options.dialogPicture})
    {
        const Result<> checked = path.empty() ? Done{} : checkOutputFile(path);
        if (!checked)
        {
            frontEnd.report(checked.failure().line);
            return false;
        }
    }
    return true;
}

Result<OpenedDrawing> openOrMake(const std::string& path, FrontEnd& frontEnd)
{
    if (path.empty())
    {
        return OpenedDrawing{newDrawing()};
    }
    LongWork work(L"Opening", frontEnd);
    return openDrawing(path, work.progress());
}

Result<> saveShown(AcDbDatabase& database, const std::string& path, FrontEnd& frontEnd)
{
    LongWork work(L"Saving", frontEnd);
    return saveDrawing(database, path, work.progress());
}

Result<Plotted> plotShown(AcDbDatabase& database, const std::string& path, FrontEnd& frontEnd)
{
    LongWork work(L"Plotting", frontEnd);
    return plotDrawing(database, path, work.progress());
}

bool openDocument(const Options& options, FrontEnd& frontEnd)
{
    Result<OpenedDrawing> drawing = openOrMake(options.drawing, frontEnd);
    if (!drawing)
    {
        frontEnd.report(drawing.failure().line);
        return false;
    }
    if (!drawing->warning.empty())
    {
        frontEnd.report(drawing->warning);
    }
    documents().open(std::move(drawing->database), pathOf(options.drawing));
    return true;
}

bool loadModule(const Options& options, FrontEnd& frontEnd)
{
    const std::filesystem::path module = pathOf(options.module);
    linker().setSearchFolder(module.parent_path());
    // The path is made absolute, because a name alone would be searched for in other folders too.
    const Result<> loaded = linker().load(std::filesystem::absolute(module));
    if (!loaded)
    {
        frontEnd.report(loaded.failure().line);
    }
    return bool(loaded);
}

// Runs the commands. Returns true when the input ended between commands and nothing failed.
bool runInput(Editor& editor)
{
    runCommands(editor);
    return !editor.endedInsideCommand() && !editor.failed();
}

bool save(const Options& options, Editor& editor, FrontEnd& frontEnd)
{
    if (options.save.empty())
    {
        return true;
    }
    AcDbDatabase& database = *documents().document()->database();
    const Result<> saved = saveShown(database, options.save, frontEnd);
    if (!saved)
    {
        frontEnd.report(saved.failure().line);
        return false;
    }
    for (const std::string& loss : lossesOnSaving(database))
    {
        frontEnd.report(options.save + ": " + loss);
    }
    noteSaved(editor);
    tellSaved(editor, pathOf(options.save));
    return true;
}

// Saves the drawing as the options ask. A person's unsaved work is kept in a file of its own
// however the session ends, unless that person has given it up.
bool saveOrKeep(const Options& options, Editor& editor, FrontEnd& frontEnd)
{
    const bool isSaved = save(options, editor, frontEnd);
    const bool isGivenUp = options.save.empty() && editor.hasQuit();
    if (editor.interactive() && !isGivenUp && isUnsaved())
    {
        keepUnsaved(editor);
    }
    return isSaved;
}

void watchOverWork(const Options& options, Editor& editor)
{
    noteSaved(editor);
    tellKept(editor);
    if (options.save.empty())
    {
        editor.askBeforeQuitting([&editor] { return mayGiveUpChanges(editor); });
    }
}

bool plot(const Options& options, FrontEnd& frontEnd)
{
    if (options.plot.empty())
    {
        return true;
    }
    const Result<Plotted> plotted =
        plotShown(*documents().document()->database(), options.plot, frontEnd);
    if (!plotted)
    {
        frontEnd.report(plotted.failure().line);
    }
    else if (!plotted->leftOut.empty())
    {
        frontEnd.report(options.plot + ": not drawn: " + plotted->leftOut);
    }
    return bool(plotted);
}

Result<> savePicture(const std::string& path, const Result<std::string>& picture)
{
    return picture ? writeOutputFile(path, *picture)
                   : Failure{path + ": " + picture.failure().line};
}

// Runs the commands and saves a picture of the last dialog that they showed.
bool runInputAndDraw(Editor& editor, const std::string& path)
{
    Result<std::string> picture = Failure{"no dialog was shown that could be drawn"};
    const DialogObserver observer([&](HWND dialog) { picture = drawDialog(dialog); });
    const bool ended = runInput(editor);
    const Result<> saved = savePicture(path, picture);
    if (!saved)
    {
        editor.report(fromUtf8(saved.failure().line));
    }
    return ended && saved;
}

// Returns the information that a person at the terminal needs, in one line of at most eighty
// letters.
std::wstring welcome()
{
    const std::wstring names = moduleCommandNames();
    return own(L"arxhost %1 for DXF drawings: %2SAVEAS, QUIT; HELP lists the rest.",
               {fromUtf8(ARXHOST_VERSION), names.empty() ? names : names + L", "});
}

bool runDocument(const Options& options, FrontEnd& frontEnd)
{
    Editor editor(frontEnd, options.trace);
    const auto report =
        linker().reportTo([&](const std::string& line) { editor.printLine(fromUtf8(line)); });
    bool done = loadModule(options, frontEnd);
    if (done)
    {
        if (frontEnd.interactive())
        {
            editor.printLine(welcome());
            watchOverWork(options, editor);
        }
        done = options.dialogPicture.empty() ? runInput(editor)
                                             : runInputAndDraw(editor, options.dialogPicture);
        // A run that was cut short still leaves the entities that it has drawn.
        done = saveOrKeep(options, editor, frontEnd) && done;
        done = plot(options, frontEnd) && done;
    }
    documents().close();
    linker().unloadAll();
    return done;
}
}  // namespace

int runJob(const Options& options, FrontEnd& frontEnd)
{
    setProductLocale(options.locale);
    registerHostCommands();
    registerSaveAs();
    registerPlot();
    const bool done = canBeWritten(options, frontEnd) && openDocument(options, frontEnd) &&
                      runDocument(options, frontEnd);
    return done ? EXIT_SUCCESS : EXIT_FAILURE;
}
}  // namespace host
