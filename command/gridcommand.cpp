#include "command/gridcommand.h"

#include "command/borrowedframe.h"
#include "command/preview.h"
#include "output/entities.h"
#include "output/labels.h"
#include "settings/settingsfile.h"

namespace
{
void readTextStyleName(CString& textStyleName)
{
    CString current;
    if (currentTextStyleName(current) == Acad::eOk && !current.IsEmpty())
    {
        textStyleName = current;
    }
}

CString appearance(const GridSettings& settings, const Messages& messages)
{
    if (settings.LookType != 1)
    {
        return messages.continuousLine;
    }
    CString text;
    text.Format(messages.crossMark, settings.crossSize);
    return text;
}

// Prints the settings. A number that is not set is printed with all its 309 digits.
void printSummary(const GridSettings& settings, const Messages& messages)
{
    acutPrintf(messages.summary, settings.HorStep, settings.VertStep, settings.Color,
               static_cast<const wchar_t*>(appearance(settings, messages)));
}

void accept(const GridRun& run, const PickedRectangle& rectangle, const AcDbObjectIdArray& gridIds,
            SettingsFile& file)
{
    if (!file.save(run.settings))
    {
        acutPrintf(run.messages->saveFailed);
    }
    if (run.settings.delCont == 1)
    {
        eraseEntity(rectangle.boundaryId);
    }
    makeGroup(gridIds, L"*");
}

void drawGrid(GridRun& run, SettingsFile& file)
{
    const BorrowedFrame frame;
    AcGePoint3d firstUcs(0.0, 0.0, 0.0);
    AcGePoint3d otherUcs(0.0, 0.0, 0.0);
    if (!askFirstCorner(run, firstUcs) || !askOtherCorner(*run.messages, firstUcs, otherUcs))
    {
        return;
    }
    const PickedRectangle rectangle = drawRectangle(firstUcs, otherUcs);
    AcDbObjectIdArray gridIds(0, 8);
    if (offerGrid(run, rectangle, gridIds))
    {
        accept(run, rectangle, gridIds, file);
    }
}
}  // namespace

void gridCommand(HINSTANCE module)
{
    GridRun run(module);
    SettingsFile file(settingsFilePath(module));
    file.load(run.settings);
    readTextStyleName(run.settings.textStyleName);
    printSummary(run.settings, *run.messages);
    drawGrid(run, file);
}
