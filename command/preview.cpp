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

// Only the whole keyword counts here, in its case: any other text rebuilds the grid.
Answer answerOf(const wchar_t* text, const Messages& messages)
{
    if (wcscmp(text, messages.applyKeyword) == 0)
    {
        return answerApply;
    }
    return wcscmp(text, messages.settingsKeyword) == 0 ? answerSettings : answerOther;
}

// Text that is no keyword comes back as RTNORM or as RTKWORD, by the host's release; both ask anew.
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

// One that cannot be erased stays, and the others go all the same.
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
    // A refusal holds for one pass: the next one builds without asking, whatever the steps are
    // then.
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
