#include "settings/settingsdlg.h"

#include <iterator>

#include "output/language.h"
#include "output/numbers.h"
#include "resources/resource.h"
#include "settings/options.h"
#include "settings/textstyles.h"

namespace
{
const int shownDecimals = 4;

// Shows one option in its control. Separate functions show the options with lists, because a list
// must get its entries first.
struct ShowInControl
{
    CWnd& dialog;
    const GridSettings& settings;

    void operator()(const IntOption& option) const
    {
        const int value = settings.*option.member;
        const bool isOn = option.kind == checkedAtOne ? value == 1 : value != 0;
        if (option.kind != listControl)
        {
            dialog.CheckDlgButton(option.control, isOn ? BST_CHECKED : BST_UNCHECKED);
        }
    }
    void operator()(const RealOption& option) const
    {
        dialog.SetDlgItemText(option.control, formatReal(settings.*option.member, shownDecimals));
    }
    void operator()(const TextOption& option) const
    {
        dialog.SetDlgItemText(option.control, settings.*option.member);
    }
};

// Enables or disables a control. A control that the host cannot find is ignored.
void enable(CWnd& dialog, int control, BOOL enabled)
{
    CWnd* window = dialog.GetDlgItem(control);
    if (window != nullptr)
    {
        window->EnableWindow(enabled);
    }
}

// Enables or disables the control of an option of the labels.
struct EnableLabelControl
{
    CWnd& dialog;
    BOOL enabled;

    template <class Row>
    void operator()(const Row& option) const
    {
        if (option.isOfLabels)
        {
            enable(dialog, option.control, enabled);
        }
    }
};
}  // namespace

BEGIN_MESSAGE_MAP(CSettingsDlg, CAcUiDialog)
ON_BN_CLICKED(IDC_PICK_VERT_STEP, &CSettingsDlg::OnPickVertStep)
ON_BN_CLICKED(IDC_PICK_HOR_STEP, &CSettingsDlg::OnPickHorStep)
ON_BN_CLICKED(IDC_PICK_CROSS_SIZE, &CSettingsDlg::OnPickCrossSize)
ON_BN_CLICKED(IDC_PICK_BASE_POINT, &CSettingsDlg::OnPickBasePoint)
ON_BN_CLICKED(IDC_PICK_TEXT_HEIGHT, &CSettingsDlg::OnPickTextHeight)
ON_BN_CLICKED(IDC_LINES, &CSettingsDlg::OnAppearanceChanged)
ON_BN_CLICKED(IDC_CROSSES, &CSettingsDlg::OnAppearanceChanged)
ON_BN_CLICKED(IDC_MODE_WCS, &CSettingsDlg::OnModeChanged)
ON_BN_CLICKED(IDC_MODE_VIEW, &CSettingsDlg::OnModeChanged)
ON_BN_CLICKED(IDC_NEED_TEXT, &CSettingsDlg::OnNeedTextChanged)
ON_BN_CLICKED(IDOK, &CSettingsDlg::OnOK)
END_MESSAGE_MAP()

CSettingsDlg::CSettingsDlg(const GridSettings& settings, double gridWidth, double gridHeight,
                           const CString& localeName, const CString& textStyleName)
    : CAcUiDialog(IDD_SETTINGS, CWnd::FromHandle(adsw_acadMainWnd())),
      m_settings(settings),
      m_localeName(localeName),
      m_textStyleName(textStyleName),
      m_texts(&settingsTextsFor(localeName)),
      m_basePoint(settings.basePoint),
      m_basePointInUcs(false)
{
    const Length vert = {IDC_VERT_STEP, settings.VertStep, &m_texts->vertStep.length};
    const Length hor = {IDC_HOR_STEP, settings.HorStep, &m_texts->horStep.length};
    const Length cross = {IDC_CROSS_SIZE, settings.crossSize, &m_texts->crossSize};
    const Length text = {IDC_TEXT_HEIGHT, settings.heightText, &m_texts->textHeight};
    const Step vertStep = {vert, gridHeight, m_texts->vertStep.tooBig, true, false};
    const Step horStep = {hor, gridWidth, m_texts->horStep.tooBig, false, false};
    m_vertStep = vertStep;
    m_horStep = horStep;
    m_crossSize = cross;
    m_textHeight = text;
}

void CSettingsDlg::DoDataExchange(CDataExchange* exchange)
{
    CAcUiDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_COLOR, m_color);
    DDX_Control(exchange, IDC_TEXT_STYLE, m_textStyle);
    DDX_Control(exchange, IDC_ACCURACY, m_accuracy);
    DDX_Control(exchange, IDC_PICK_VERT_STEP, m_pickVertStep);
    DDX_Control(exchange, IDC_PICK_HOR_STEP, m_pickHorStep);
    DDX_Control(exchange, IDC_PICK_CROSS_SIZE, m_pickCrossSize);
    DDX_Control(exchange, IDC_PICK_BASE_POINT, m_pickBasePoint);
    DDX_Control(exchange, IDC_PICK_TEXT_HEIGHT, m_pickTextHeight);
}

BOOL CSettingsDlg::OnInitDialog()
{
    CAcUiDialog::OnInitDialog();
    if (!isRussian(m_localeName))
    {
        showEnglish();
    }
    showBanners();
    loadPickButtons();  // follows the captions, because they name the picture and the tooltip
    showOptions();
    showColor();
    showTextStyles();
    showAccuracies();
    showBasePoint();
    OnAppearanceChanged();
    OnNeedTextChanged();
    return TRUE;
}

void CSettingsDlg::showEnglish()
{
    SetWindowText(englishTitle());
    for (const Caption* caption = englishCaptions(); caption->text != nullptr; ++caption)
    {
        SetDlgItemText(caption->control, caption->text);
    }
}

// Sets the banners of the prefixes. The host hides a banner while its edit has the focus. A banner
// is not the text of its edit, so an empty prefix stays empty.
void CSettingsDlg::showBanners()
{
    SendDlgItemMessage(IDC_X_PREFIX, EM_SETCUEBANNER, FALSE,
                       reinterpret_cast<LPARAM>(m_texts->xPrefixBanner));
    SendDlgItemMessage(IDC_Y_PREFIX, EM_SETCUEBANNER, FALSE,
                       reinterpret_cast<LPARAM>(m_texts->yPrefixBanner));
}

void CSettingsDlg::loadPickButtons()
{
    CAdUiBitmapButton* const buttons[] = {&m_pickVertStep, &m_pickHorStep, &m_pickCrossSize,
                                          &m_pickBasePoint, &m_pickTextHeight};
    for (auto button = std::begin(buttons); button != std::end(buttons); ++button)
    {
        (*button)->SetAutoSizeToBitmap(FALSE);
        (*button)->AutoLoad();  // the result is ignored: a button works without its picture, too
    }
}

// Shows all options except the lists. An option with two radio buttons names the second button, so
// the first button is set here.
void CSettingsDlg::showOptions()
{
    const ShowInControl show = {*this, m_settings};
    forEachOption(show);
    CheckRadioButton(IDC_LINES, IDC_CROSSES, isChecked(IDC_CROSSES) ? IDC_CROSSES : IDC_LINES);
    CheckRadioButton(IDC_MODE_WCS, IDC_MODE_VIEW,
                     isChecked(IDC_MODE_VIEW) ? IDC_MODE_VIEW : IDC_MODE_WCS);
}

// Selects the colour of the settings. When a colour is added that the list already holds, releases
// of the list return different results. The function therefore searches for the item that OK would
// read as this colour. If the list does not know the number as a colour, nothing is selected.
void CSettingsDlg::showColor()
{
    m_color.AddColorToMRU(m_settings.Color);
    for (int item = 0; item < m_color.GetCount(); ++item)
    {
        m_color.SetCurSel(item);
        if (m_color.GetCurrentItemColorIndex() == m_settings.Color)
        {
            return;
        }
    }
    m_color.SetCurSel(CB_ERR);
}

void CSettingsDlg::showTextStyles()
{
    const std::vector<CString> names = textStyleNames();
    for (auto name = names.begin(); name != names.end(); ++name)
    {
        m_textStyle.AddString(*name);
    }
    const CString current = m_textStyleName.IsEmpty() ? CString(L"Standard") : m_textStyleName;
    m_textStyle.SetCurSel(m_textStyle.FindStringExact(-1, current));
}

void CSettingsDlg::showAccuracies()
{
    const wchar_t* const items[] = {L"0", L"0.0", L"0.00", L"0.000", L"0.0000"};
    for (auto item = std::begin(items); item != std::end(items); ++item)
    {
        m_accuracy.AddString(*item);
    }
    m_accuracy.SetCurSel(m_settings.iCountSigns);
}

void CSettingsDlg::showBasePoint()
{
    AcGePoint3d shown = m_basePoint;
    const bool inUcs = isChecked(IDC_MODE_VIEW);
    if (inUcs && !m_basePointInUcs)
    {
        acdbWcs2Ucs(asDblArray(shown), asDblArray(shown), false);
    }
    if (!inUcs && m_basePointInUcs)
    {
        acdbUcs2Wcs(asDblArray(shown), asDblArray(shown), false);
    }
    CString text;
    text.Format(L"(%s, %s)", static_cast<LPCWSTR>(formatReal(shown.x, shownDecimals)),
                static_cast<LPCWSTR>(formatReal(shown.y, shownDecimals)));
    SetDlgItemText(IDC_BASE_POINT, text);
}

void CSettingsDlg::showReal(int edit, double value)
{
    SetDlgItemText(edit, formatReal(value, shownDecimals));
}

double CSettingsDlg::shownReal(int edit) const
{
    CString text;
    GetDlgItemText(edit, text);
    return parseReal(text);
}

bool CSettingsDlg::isChecked(int button) const
{
    return IsDlgButtonChecked(button) == BST_CHECKED;
}

void CSettingsDlg::OnAppearanceChanged()
{
    const BOOL crosses = isChecked(IDC_CROSSES);
    enable(*this, IDC_CROSS_SIZE, crosses);
    enable(*this, IDC_PICK_CROSS_SIZE, crosses);
}

void CSettingsDlg::OnModeChanged()
{
    showBasePoint();
}

void CSettingsDlg::OnNeedTextChanged()
{
    // These controls belong to the labels but not to an option of the settings file.
    const int others[] = {IDC_TEXT_STYLE, IDC_PICK_TEXT_HEIGHT, IDC_TEXT_STYLE_LABEL,
                          IDC_TEXT_HEIGHT_LABEL, IDC_ACCURACY_LABEL};
    const EnableLabelControl enableOption = {*this, isChecked(IDC_NEED_TEXT)};
    forEachOption(enableOption);
    for (auto control = std::begin(others); control != std::end(others); ++control)
    {
        enable(*this, *control, enableOption.enabled);
    }
}
