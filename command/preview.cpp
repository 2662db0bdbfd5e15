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

AcDbObjectIdArray buildFrom(const GridSettings& s, const PickedRectangle& rectangle,
                            const CString& localeName)
{
    // Any int may stand in the file; the conversion takes it modulo 65536, and the host refuses
    // what is then no colour index.
    const Adesk::UInt16 color = static_cast<Adesk::UInt16>(s.Color);
    return buildGrid(
        rectangle.boundaryId, rectangle.firstCorner, rectangle.otherCorner, s.HorStep, s.VertStep,
        color, s.crossSize, s.LookType, s.WCSBasePoint, s.basePoint, s.needText != 0, s.heightText,
        s.iCountSigns, s.bXTopScribe != 0, s.bXBottomScribe != 0, s.bXLeftScribe != 0,
        s.bXRightScribe != 0, s.bYTopScribe != 0, s.bYBottomScribe != 0, s.bYLeftScribe != 0,
        s.bYRightScribe != 0, s.textXScribe, s.textYScribe, s.textStyleName, localeName);
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
        const bool build =
            asked || mayBuildGrid(rectangle.width, rectangle.height, run.settings, run.localeName);
        asked = true;
        if (build)
        {
            gridIds = buildFrom(run.settings, rectangle, run.localeName);
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
