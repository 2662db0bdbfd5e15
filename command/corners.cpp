#include "command/corners.h"

#include <cmath>

#include "command/editsettings.h"
#include "command/promptfailures.h"
#include "output/entities.h"
#include "output/frame.h"

namespace
{
// Compares only the first letter of the answer: the whole word "Settings" does not match the
// one-letter keyword, so the host returns it as it was typed. The comparison is case-sensitive,
// because the host returns a matched keyword as it is listed.
bool answerIsKeyword(const wchar_t* keyword)
{
    wchar_t answer[answerCapacity] = L"";
    return acedGetInput(answer) == RTNORM && answer[0] == keyword[0];
}

void answerFirstCornerText(GridRun& run)
{
    const double unknown = -1.0;
    if (answerIsKeyword(run.messages->settingsKeyword))
    {
        editSettings(run, unknown, unknown);
    }
}

AcDbObjectId drawBoundary(const AcGePoint3d& firstUcs, const AcGePoint3d& otherUcs)
{
    const Adesk::UInt16 boundaryColor = 250;
    AcGePoint3dArray vertices;
    vertices.append(firstUcs);
    vertices.append(AcGePoint3d(firstUcs.x, otherUcs.y, 0.0));
    vertices.append(otherUcs);
    vertices.append(AcGePoint3d(otherUcs.x, firstUcs.y, 0.0));
    vertices.append(firstUcs);
    return addPolylineFrame(true, vertices, boundaryColor, nullptr, nullptr, L"*Model_Space");
}
}  // namespace

bool askFirstCorner(GridRun& run, AcGePoint3d& cornerUcs)
{
    PromptFailures failures;
    for (;;)
    {
        // The keywords are set for each prompt, because the host drops them after every prompt.
        acedInitGet(RSG_OTHER, run.messages->settingsKeyword);
        const int result =
            acedGetPoint(nullptr, run.messages->firstCornerPrompt, asDblArray(cornerUcs));
        if (result == RTNORM)
        {
            return true;
        }
        if (result == RTCAN || result == RTERROR || failures.areTooMany(result))
        {
            return false;
        }
        if (result == RTKWORD)
        {
            answerFirstCornerText(run);
        }
        // The loop asks again after any other answer, for example after Enter.
    }
}

bool askOtherCorner(const Messages& messages, const AcGePoint3d& firstUcs, AcGePoint3d& cornerUcs)
{
    return acedGetCorner(asDblArray(firstUcs), messages.otherCornerPrompt, asDblArray(cornerUcs)) ==
           RTNORM;
}

PickedRectangle drawRectangle(const AcGePoint3d& firstUcs, const AcGePoint3d& otherUcs)
{
    PickedRectangle rectangle;
    rectangle.boundaryId = drawBoundary(firstUcs, otherUcs);
    rectangle.width = std::fabs(otherUcs.x - firstUcs.x);
    rectangle.height = std::fabs(otherUcs.y - firstUcs.y);
    rectangle.firstCorner = toWcs(firstUcs);
    rectangle.otherCorner = toWcs(otherUcs);
    return rectangle;
}
