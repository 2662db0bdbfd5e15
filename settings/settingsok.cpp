// The settings dialog: checks and stores the values on OK. A value that is refused leaves the
// dialog open and the settings unchanged.
#include "output/numbers.h"
#include "resources/resource.h"
#include "settings/manylines.h"
#include "settings/options.h"
#include "settings/restingdialog.h"
#include "settings/settingsdlg.h"

namespace
{
// Reads one option from its control. Separate functions read lengths and lists, because a length
// may be refused and a list may have no selection.
struct ReadControl
{
    const CWnd& dialog;
    GridSettings& settings;

    void operator()(const IntOption& option) const
    {
        if (option.kind != listControl)
        {
            settings.*option.member = dialog.IsDlgButtonChecked(option.control) == BST_CHECKED;
        }
    }
    void operator()(const RealOption&) const {}
    void operator()(const TextOption& option) const
    {
        dialog.GetDlgItemText(option.control, settings.*option.member);
    }
};
}  // namespace

void CSettingsDlg::OnOK()
{
    GridSettings settings = m_settings;
    readOptions(settings);
    if (!readStep(m_vertStep, settings.VertStep) || !readStep(m_horStep, settings.HorStep))
    {
        return;
    }
    if (settings.LookType == 1 && !readLength(m_crossSize, settings.crossSize))
    {
        return;
    }
    // The height is deliberately checked with the labels off, too: a user who turns them on later
    // then has a usable height.
    if (!readLength(m_textHeight, settings.heightText))
    {
        return;
    }
    m_settings = settings;
    CAcUiDialog::OnOK();
}

bool CSettingsDlg::readLength(const Length& length, double& value)
{
    const double typed = shownReal(length.edit);
    if (typed == notSetReal() || !(typed > 0.0))
    {
        {
            const RestingDialog resting(*this);
            acedAlert(length.texts->notSet);
        }
        goToEdit(length.edit);
        return false;
    }
    value = typed;
    return true;
}

// Moves the focus to the edit, so that the user can correct the value. If the edit is disabled, the
// host leaves the focus where it is.
void CSettingsDlg::goToEdit(int edit)
{
    CWnd* control = GetDlgItem(edit);
    if (control != nullptr)
    {
        GotoDlgCtrl(control);
    }
}

bool CSettingsDlg::readStep(Step& step, double& value)
{
    return readLength(step.length, value) && allowsMany(step, value);
}

bool CSettingsDlg::allowsMany(Step& step, double value)
{
    if (step.manyAllowed || !(step.gridSize > 0.0) || !isManyLines(step.gridSize, value))
    {
        return true;
    }
    const RestingDialog resting(*this);
    step.manyAllowed = userAllowsManyLines(step.vertical, !step.vertical, m_localeName);
    return step.manyAllowed;
}

AcGePoint3d CSettingsDlg::basePointWcs() const
{
    AcGePoint3d point = m_basePoint;
    if (m_basePointInUcs)
    {
        acdbUcs2Wcs(asDblArray(point), asDblArray(point), false);
    }
    return point;
}

// Reads all options except the lengths. A list without a selection leaves its option unchanged.
void CSettingsDlg::readOptions(GridSettings& settings)
{
    const ReadControl read = {*this, settings};
    forEachOption(read);
    if (m_color.GetCurSel() != CB_ERR)
    {
        settings.Color = m_color.GetCurrentItemColorIndex();
    }
    if (m_accuracy.GetCurSel() != CB_ERR)
    {
        settings.iCountSigns = m_accuracy.GetCurSel();
    }
    if (m_textStyle.GetCurSel() != CB_ERR)
    {
        m_textStyle.GetLBText(m_textStyle.GetCurSel(), settings.textStyleName);
    }
    settings.basePoint = basePointWcs();
}
