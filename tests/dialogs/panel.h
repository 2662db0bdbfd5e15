// A dialog with a control of every kind and with handlers that the test provides.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "acui.h"
#include "tests/support/dialogtemplate.h"

// Keeps the template in a separate module as long as the dialog lives.
struct PanelResources
{
    explicit PanelResources(const support::TemplateBuilder& made);

    const HINSTANCE module;
    const support::GivenResources given;
};

class Panel : private PanelResources, public CAcUiDialog
{
    DECLARE_MESSAGE_MAP()

public:
    enum
    {
        templateId = 100,
        stepLabel = 10,
        step,
        pick,
        sizeLabel,
        size,  // disabled
        look = 20,
        lines,
        crosses,
        erase,
        style = 30,
        color,
        rule = 40,
        frame,
        hidden = 50  // hidden from the start of the dialog
    };

    explicit Panel(const support::TemplateBuilder& made = all(), CWnd* parent = nullptr);

    // Returns a template with the controls from stepLabel to hidden, then OK, which is the default
    // button, and Cancel.
    static support::TemplateBuilder all();

    std::wstring text(int id) const;
    bool checked(int id) const;

    using CAcUiDialog::OnCommand;
    using PanelResources::module;

    std::function<void()> onInit;
    std::function<void()> onPick;
    std::function<bool()> mayOk;      // OK closes the dialog unless this function returns false
    std::function<bool()> mayCancel;  // Cancel closes the dialog unless this function returns false
    std::vector<std::string> told;    // "ID CODE" of each notification of a control

    CComboBox styles;           // "Standard", "Notes" and "Two words"
    CAcUiColorComboBox colors;  // the fixed colours

    virtual BOOL OnInitDialog() override;

protected:
    virtual void DoDataExchange(CDataExchange* exchange) override;
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    virtual void OnOK() override;
    virtual void OnCancel() override;

private:
    void OnPick();
};
