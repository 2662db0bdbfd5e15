// The settings dialog: takes values that the user picks in the drawing while the dialog is hidden.
#include <cmath>

#include "output/numbers.h"
#include "resources/resource.h"
#include "settings/manylines.h"
#include "settings/settingsdlg.h"

namespace
{
bool isZero(double length)
{
    return std::fabs(length) < AcGeContext::gTol.equalPoint();
}
}  // namespace

// Hides the dialog during a prompt and the alerts that follow it. The destructor shows the dialog
// again on every way out.
class CSettingsDlg::SteppedAside
{
public:
    explicit SteppedAside(CSettingsDlg& dialog) : m_dialog(dialog)
    {
        m_dialog.BeginEditorCommand();
    }
    ~SteppedAside() { m_dialog.CompleteEditorCommand(); }

private:
    SteppedAside(const SteppedAside&);
    SteppedAside& operator=(const SteppedAside&);

    CSettingsDlg& m_dialog;
};

void CSettingsDlg::OnPickVertStep()
{
    pickStep(m_vertStep);
}

void CSettingsDlg::OnPickHorStep()
{
    pickStep(m_horStep);
}

void CSettingsDlg::OnPickCrossSize()
{
    pickSize(m_crossSize);
}

void CSettingsDlg::OnPickTextHeight()
{
    pickSize(m_textHeight);
}

// Asks for the base point. The host returns coordinates of the current UCS. In the mode of the
// world these numbers are used as world coordinates without a conversion. This looks wrong, but it
// is kept for surveyors, who can therefore type world coordinates in any view.
void CSettingsDlg::OnPickBasePoint()
{
    AcGePoint3d picked(0.0, 0.0, 0.0);
    const SteppedAside aside(*this);
    if (acedGetPoint(nullptr, m_texts->basePointPrompt, asDblArray(picked)) == RTNORM)
    {
        m_basePoint = picked;
        m_basePointInUcs = isChecked(IDC_MODE_VIEW);
        showBasePoint();
    }
}

// Asks for a step. A pick that is refused changes neither the edit nor the value with which the
// next pick begins.
void CSettingsDlg::pickStep(Step& step)
{
    takeTyped(step.length);
    const SteppedAside aside(*this);
    double picked = 0.0;
    if (askLength(step.length, picked) && stepIsAccepted(step, picked))
    {
        keepPicked(step.length, picked);
    }
}

void CSettingsDlg::pickSize(Length& size)
{
    takeTyped(size);
    const SteppedAside aside(*this);
    double picked = 0.0;
    if (!askLength(size, picked))
    {
        return;
    }
    if (isZero(picked))
    {
        acedAlert(size.texts->zero);
        return;
    }
    keepPicked(size, picked);
}

// Makes the typed value the one with which the pick begins. If the typed text is not a number, the
// edit shows the value with which the pick begins.
void CSettingsDlg::takeTyped(Length& length)
{
    const double typed = shownReal(length.edit);
    if (typed != notSetReal())
    {
        length.current = typed;
    }
    else
    {
        showReal(length.edit, length.current);
    }
}

// Asks for a length and returns whether the user gave one. The caller has hidden the dialog.
bool CSettingsDlg::askLength(const Length& length, double& picked)
{
    CString prompt;
    prompt.Format(length.texts->prompt, length.current);
    picked = length.current;
    return acedGetDist(nullptr, prompt, &picked) == RTNORM;
}

void CSettingsDlg::keepPicked(Length& length, double picked)
{
    length.current = picked;
    showReal(length.edit, picked);
}

bool CSettingsDlg::stepIsAccepted(Step& step, double picked)
{
    if (!(step.gridSize > 0.0))
    {
        return true;
    }
    if (isZero(picked))
    {
        acedAlert(step.length.texts->zero);
        return false;
    }
    if (picked > step.gridSize)
    {
        acedAlert(step.tooBig);
        return false;
    }
    // The question is asked at every pick of such a step, whatever the user answered before. A Yes
    // also holds for OK.
    if (!isManyLines(step.gridSize, picked))
    {
        return true;
    }
    if (!userAllowsManyLines(step.vertical, !step.vertical, m_localeName))
    {
        return false;
    }
    step.manyAllowed = true;
    return true;
}
