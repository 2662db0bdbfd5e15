#include "command/preview.h"

#include <cwchar>

#include "command/editsettings.h"
#include "command/largegrid.h"
#include "command/promptfailures.h"
#include "engine/buildgrid.h"
#include "output/entities.h"

namespace
{
enum Answer
{
    answerApply,
    answerSettings,
    answerCancel,
    answerOther
};

AcDbObjectIdArray build(const GridRun& run, const PickedRectangle& rectangle)
{
    const GridRequest request = {rectangle.firstCorner, rectangle.otherCorner, run.settings,
                                 run.localeName};
    return drawGrid(rectangle.boundaryId, request);
}

// Returns which answer the text is. Only the exact keyword counts here, letter case included; any
// other text rebuilds the grid.
Answer answerOf(const wchar_t* text, const Messages& messages)
{
    if (wcscmp(text, messages.applyKeyword) == 0)
    {
        return answerApply;
    }
    return wcscmp(text, messages.settingsKeyword) == 0 ? answerSettings : answerOther;
}

// Asks whether the grid is accepted. If the user types text that is not a keyword, the host returns
// RTNORM or RTKWORD, depending on its release; after either result the command asks again.
Answer askAnswer(const Messages& messages, PromptFailures& failures)
{
    CString keywords;
    keywords.Format(L"%s %s", messages.applyKeyword, messages.settingsKeyword);
    acedInitGet(RSG_OTHER, keywords);
    wchar_t text[answerCapacity] = L"";
    const int result = acedGetKword(messages.acceptPrompt, text);
    if (failures.areTooMany(result))
    {
        return answerCancel;
    }
    switch (result)
    {
        case RTCAN:
            return answerCancel;
        case RTNONE:
            return answerApply;
        case RTNORM:
            return answerOf(text, messages);
        default:
            return answerOther;
    }
}

// Erases the entities and empties the list. An entity that cannot be erased stays in the drawing
// and does not keep the others from being erased.
void eraseEntities(AcDbObjectIdArray& ids)
{
    for (int i = 0; i < ids.length(); ++i)
    {
        eraseEntity(ids[i]);
    }
    ids.removeAll();
}
}  // namespace

bool offerGrid(GridRun& run, const PickedRectangle& rectangle, AcDbObjectIdArray& gridIds)
{
    // The question about a very dense grid is asked once. A refusal holds for one pass: the next
    // pass builds the grid without asking, whatever the steps are by then.
    bool asked = false;
    PromptFailures failures;
    for (;;)
    {
        eraseEntities(gridIds);
        const bool isWanted =
            asked || mayBuildGrid(rectangle.width, rectangle.height, run.settings, run.localeName);
        asked = true;
        if (isWanted)
        {
            gridIds = build(run, rectangle);
        }
        switch (askAnswer(*run.messages, failures))
        {
            case answerApply:
                return true;
            case answerSettings:
                editSettings(run, rectangle.width, rectangle.height);
                break;
            case answerCancel:
                eraseEntities(gridIds);
                eraseEntity(rectangle.boundaryId);
                return false;
            case answerOther:
                break;
        }
    }
}
