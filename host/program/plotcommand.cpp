#include "host/program/plotcommand.h"

#include "host/documents/documentmanager.h"
#include "host/dxf/filesource.h"
#include "host/editor/hostcommands.h"
#include "host/editor/prompts.h"
#include "host/plot/measure.h"
#include "host/plot/plot.h"
#include "host/program/longwork.h"
#include "host/program/unsaved.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
Result<Plotted> plotShown(AcDbDatabase& database, const std::string& path, Editor& editor)
{
    LongWork work(L"Plotting", editor);
    return plotDrawing(database, path, work.progress());
}

void plotCommand()
{
    Editor& editor = *Editor::current();
    auto name = askLine(editor, Question::Kind::file, own(L"Plot to file (.png, .pdf or .svg): "));
    if (!name || name->empty())
    {
        return;
    }
    std::erase(*name, L'"');
    const std::string path = toNativePath(*name).string();
    if (!mayReplace(editor, pathOf(path)))
    {
        return;
    }
    const Result<Plotted> plotted = plotShown(*documents().document()->database(), path, editor);
    if (!plotted)
    {
        editor.fail(fromUtf8(plotted.failure().line));
        return;
    }
    if (!plotted->leftOut.empty())
    {
        editor.printLine(own(L"%1: not drawn: %2", {fromUtf8(path), fromUtf8(plotted->leftOut)}));
    }
    tellSaved(editor, pathOf(path));
}
}  // namespace

void registerPlot()
{
    dxf::setMeasure(plot::entityExtents);
    registerHostCommand(L"PLOT", ACRX_CMD_NO_UNDO_MARKER, plotCommand,
                        L"draws model space as a picture");
}
}  // namespace host
