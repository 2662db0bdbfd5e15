// The base classes of the host's own dialogs, which find their resources and step aside for the
// editor.
#include <utility>

#include "acui.h"
#include "host/dialogs/modalloop.h"
#include "host/dialogs/wnd.h"
#include "host/basics/breach.h"
#include "host/windows/resourcechain.h"

BEGIN_MESSAGE_MAP(CAdUiBaseDialog, CDialog)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CAdUiDialog, CAdUiBaseDialog)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CAcUiDialog, CAdUiDialog)
END_MESSAGE_MAP()

CAdUiBaseDialog::CAdUiBaseDialog(UINT templateId, CWnd* parent, HINSTANCE resources)
    : CDialog(templateId, parent), m_resources(resources)
{
    if (!host::isDialogLibraryLinked())
    {
        host::breach("CAdUiBaseDialog", "made before InitAcUiDLL");
    }
}

namespace
{
// Makes a module's resources current for the length of a scope; null keeps the current resources.
class CurrentResources
{
public:
    explicit CurrentResources(HINSTANCE module) : m_former(AfxGetResourceHandle())
    {
        AfxSetResourceHandle(module != nullptr ? module : m_former);
    }
    ~CurrentResources() { AfxSetResourceHandle(m_former); }
    CurrentResources(const CurrentResources&) = delete;
    CurrentResources& operator=(const CurrentResources&) = delete;

private:
    HINSTANCE m_former;
};
}  // namespace

INT_PTR CAdUiBaseDialog::DoModal()
{
    const CurrentResources resources(m_resources);
    return CDialog::DoModal();
}

CAdUiDialog::CAdUiDialog(UINT templateId, CWnd* parent, HINSTANCE resources)
    : CAdUiBaseDialog(templateId, parent, resources)
{
}

CAcUiDialog::CAcUiDialog(UINT templateId, CWnd* parent, HINSTANCE resources)
    : CAdUiDialog(templateId, parent, resources), m_editing(false)
{
}

CAcUiDialog::~CAcUiDialog()
{
    if (m_editing)
    {
        host::breach("BeginEditorCommand", "there was no CompleteEditorCommand");
    }
}

void CAcUiDialog::BeginEditorCommand()
{
    host::windowOf(*this, "BeginEditorCommand");
    if (std::exchange(m_editing, true))
    {
        host::breach("BeginEditorCommand", "called again before CompleteEditorCommand");
    }
    ShowWindow(SW_HIDE);
    host::dialogStepsAside();
}

void CAcUiDialog::CompleteEditorCommand(BOOL restoreDialogs)
{
    if (!std::exchange(m_editing, false))
    {
        host::breach("CompleteEditorCommand", "called without BeginEditorCommand");
    }
    host::dialogComesBack();
    if (restoreDialogs != FALSE)
    {
        ShowWindow(SW_SHOW);
    }
}

void CAcUiDialog::CancelEditorCommand()
{
    if (!m_editing)
    {
        host::breach("CancelEditorCommand", "called without BeginEditorCommand");
    }
    CompleteEditorCommand();
}
