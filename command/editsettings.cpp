#include "command/editsettings.h"

#include "settings/settingsdlg.h"

namespace
{
// Makes the module's resources current while this object lives, so that the host finds the template
// of the dialog.
class ModuleResources
{
public:
    explicit ModuleResources(HINSTANCE module) : m_manager(acDocManager)
    {
        if (areCurrent())
        {
            m_manager->pushResourceHandle(module);
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

bool editSettings(GridRun& run, double gridWidth, double gridHeight)
{
    const ModuleResources resources(run.module);
    if (!resources.areCurrent())
    {
        return false;
    }
    CSettingsDlg dialog(run.settings, gridWidth, gridHeight, run.localeName,
                        run.settings.textStyleName);
    if (dialog.DoModal() != IDOK)
    {
        return false;
    }
    run.settings = dialog.settings();
    return true;
}
