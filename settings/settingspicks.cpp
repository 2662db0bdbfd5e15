// The settings dialog: values picked in the drawing, while the dialog is hidden.
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

// Hides the dialog for the length of a prompt, and of the alerts that follow it, and shows it again
// on every way out.
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

// The numbers of a pick are those of the current UCS. In the world's mode they are taken for the
// world's as they stand, unchanged, which lets a surveyor type world coordinates in any view; kept
// for those who do.
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

// Every pick that is refused leaves the edit, and with it what the next pick begins with, as it is.
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

// A pick begins with what is typed; where that is no number, the edit shows what it begins with.
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

// True when the user gave a length. The dialog has stepped aside.
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
    // Asked at every such pick, whatever was answered before; a Yes holds for OK as well.
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
