#include "command/editsettings.h"

#include "app/gridapp.h"
#include "settings/settingsdlg.h"

namespace
{
// Makes the module's resources current, so that the dialog's template is found.
class ModuleResources
{
public:
    ModuleResources() : m_manager(acDocManager)
    {
        if (areCurrent())
        {
            m_manager->pushResourceHandle(gridApp().moduleHandle());
        }
    }
    ~ModuleResources()
    {
        if (areCurrent())
        {
            m_manager->popResourceHandle();
        }
    }

    bool areCurrent() const { return m_manager != nullptr; }

private:
    ModuleResources(const ModuleResources&);
    ModuleResources& operator=(const ModuleResources&);

    AcApDocManager* m_manager;
};
}  // namespace

bool editSettings(GridSettings& settings, double gridWidth, double gridHeight,
                  const CString& localeName)
{
    const ModuleResources resources;
    if (!resources.areCurrent())
    {
        return false;
    }
    CSettingsDlg dialog(settings, gridWidth, gridHeight, localeName, settings.textStyleName);
    if (dialog.DoModal() != IDOK)
    {
        return false;
    }
    settings = dialog.settings();
    return true;
}
