// The dialog in which the user changes the options.
#pragma once

#include "settings/gridsettings.h"
#include "settings/settingstexts.h"

// Works on a copy of the settings. OK checks the values in the controls and makes them the result.
// The module's resources must be current while the dialog is shown.
class CSettingsDlg : public CAcUiDialog
{
    DECLARE_MESSAGE_MAP()

public:
    // gridWidth, gridHeight  the sides of the picked rectangle in drawing units; both are -1.0
    //                        while the rectangle is not picked yet. A value is checked against a
    //                        side only if the side is above 0.
    // localeName             selects the language (output/language.h)
    // textStyleName          the selected entry of the list; an empty name selects "Standard"
    CSettingsDlg(const GridSettings& settings, double gridWidth, double gridHeight,
                 const CString& localeName, const CString& textStyleName);

    // Returns the new settings after IDOK, and otherwise the settings that the constructor
    // received. They are [borrowed] from the dialog.
    const GridSettings& settings() const { return m_settings; }

protected:
    // Connects the controls with their members.
    virtual void DoDataExchange(CDataExchange* exchange) override;

    // Fills the controls. Returns TRUE, so that the host sets the focus.
    virtual BOOL OnInitDialog() override;

    // Checks and stores the values and closes the dialog. A value that is refused leaves the dialog
    // open and the settings unchanged.
    virtual void OnOK() override;

    // The handlers of the buttons.
    afx_msg void OnPickVertStep();
    afx_msg void OnPickHorStep();
    afx_msg void OnPickCrossSize();
    afx_msg void OnPickTextHeight();
    afx_msg void OnPickBasePoint();
    afx_msg void OnAppearanceChanged();
    afx_msg void OnModeChanged();
    afx_msg void OnNeedTextChanged();

private:
    // A length that the user types or picks.
    struct Length
    {
        int edit;                  // the id of its edit
        double current;            // the length with which a pick begins, in drawing units
        const LengthTexts* texts;  // [borrowed] as long as the module is loaded
    };

    // A step of the grid.
    struct Step
    {
        Length length;
        double gridSize;        // the side that the step divides; a value not above 0 is unknown
        const wchar_t* tooBig;  // the alert for a step that is larger than the side
        bool vertical;          // true: the vertical step; false: the horizontal step
        bool manyAllowed;       // the user has said Yes to many lines
    };

    CSettingsDlg(const CSettingsDlg&);
    CSettingsDlg& operator=(const CSettingsDlg&);

    // settingsdlg.cpp: functions that carry the settings to the controls.
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

    // settingspicks.cpp: functions that take values picked in the drawing.
    class SteppedAside;
    void takeTyped(Length& length);
    bool askLength(const Length& length, double& picked);
    void keepPicked(Length& length, double picked);
    void pickStep(Step& step);
    void pickSize(Length& size);
    bool stepIsAccepted(Step& step, double picked);

    // settingsok.cpp: functions that carry the controls to the settings.
    bool readLength(const Length& length, double& value);
    void goToEdit(int edit);
    bool readStep(Step& step, double& value);
    void readOptions(GridSettings& settings);
    bool allowsMany(Step& step, double value);
    AcGePoint3d basePointWcs() const;

    GridSettings m_settings;
    CString m_localeName;
    CString m_textStyleName;
    const SettingsTexts* m_texts;  // [borrowed] as long as the module is loaded
    Step m_vertStep;
    Step m_horStep;
    Length m_crossSize;
    Length m_textHeight;

    // The base point is kept in the system in which it was given and converted only to be shown and
    // stored. Neither a change of the mode nor OK therefore moves it, not even by a rounding.
    AcGePoint3d m_basePoint;
    bool m_basePointInUcs;  // true: m_basePoint is [ucs]; false: it is [wcs]

    CAcUiColorComboBox m_color;
    CComboBox m_textStyle;
    CComboBox m_accuracy;
    CAdUiBitmapButton m_pickVertStep;
    CAdUiBitmapButton m_pickHorStep;
    CAdUiBitmapButton m_pickCrossSize;
    CAdUiBitmapButton m_pickBasePoint;
    CAdUiBitmapButton m_pickTextHeight;
};
