// The dialog in which the user changes the options.
#pragma once

#include "settings/gridsettings.h"
#include "settings/settingstexts.h"

// Works on a copy of the settings; OK checks it and makes it the result. Shown while the module's
// resources are the current ones.
class CSettingsDlg : public CAcUiDialog
{
    DECLARE_MESSAGE_MAP()

public:
    // gridWidth, gridHeight: sides of the picked rectangle in drawing units, -1.0 each when it is
    // not picked yet; what is checked against a side is checked only when the side is above 0.
    // localeName selects the language (output/language.h).
    CSettingsDlg(const GridSettings& settings, double gridWidth, double gridHeight,
                 const CString& localeName, const CString& textStyleName);

    // After IDOK the new settings, otherwise those that were given.
    const GridSettings& settings() const { return m_settings; }

protected:
    virtual void DoDataExchange(CDataExchange* exchange) override;
    virtual BOOL OnInitDialog() override;
    virtual void OnOK() override;

    afx_msg void OnPickVertStep();
    afx_msg void OnPickHorStep();
    afx_msg void OnPickCrossSize();
    afx_msg void OnPickTextHeight();
    afx_msg void OnPickBasePoint();
    afx_msg void OnAppearanceChanged();
    afx_msg void OnModeChanged();
    afx_msg void OnNeedTextChanged();

private:
    // A length that is typed or picked.
    struct Length
    {
        int edit;
        double current;  // drawing units; what a pick begins with
        const LengthTexts* texts;
    };

    struct Step
    {
        Length length;
        double gridSize;  // side of the rectangle that it divides; not above 0: unknown
        const wchar_t* tooBig;
        bool vertical;
        bool manyAllowed;  // the user has said Yes to its many lines
    };

    CSettingsDlg(const CSettingsDlg&);
    CSettingsDlg& operator=(const CSettingsDlg&);

    // settingsdlg.cpp: from the settings to the controls
    void showEnglish();
    void showBanners();
    void showOptions();
    void showColor();
    void showTextStyles();
    void showAccuracies();
    void showBasePoint();
    void showReal(int edit, double value);
    void loadPickButtons();
    double shownReal(int edit) const;
    bool isChecked(int button) const;

    // settingspicks.cpp: values picked in the drawing
    class SteppedAside;
    void takeTyped(Length& length);
    bool askLength(const Length& length, double& picked);
    void keepPicked(Length& length, double picked);
    void pickStep(Step& step);
    void pickSize(Length& size);
    bool stepIsAccepted(Step& step, double picked);

    // settingsok.cpp: from the controls to the settings
    bool readLength(const Length& length, double& value);
    void goToEdit(int edit);
    bool readStep(Step& step, double& value);
    void readOptions(GridSettings& settings);
    bool allowsMany(Step& step, double value);
    AcGePoint3d basePointWcs() const;

    GridSettings m_settings;
    CString m_localeName;
    CString m_textStyleName;
    const SettingsTexts* m_texts;  // [borrowed] for good
    Step m_vertStep;
    Step m_horStep;
    Length m_crossSize;
    Length m_textHeight;

    // Kept as it was given and changed over only to be shown: no number of changes of the mode, and
    // no OK, moves it by so much as a rounding.
    AcGePoint3d m_basePoint;
    bool m_basePointInUcs;

    CAcUiColorComboBox m_color;
    CComboBox m_textStyle;
    CComboBox m_accuracy;
    CAdUiBitmapButton m_pickVertStep;
    CAdUiBitmapButton m_pickHorStep;
    CAdUiBitmapButton m_pickCrossSize;
    CAdUiBitmapButton m_pickBasePoint;
    CAdUiBitmapButton m_pickTextHeight;
};
