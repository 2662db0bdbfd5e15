#include "command/editsettings.h"

#include "app/gridapp.h"
#include "settings/settingsdlg.h"

namespace
{
// Makes the module's resources current, so that the dialog's template is found.
class ModuleResources
{
public:
    ModuleResources() { acDocManager->pushResourceHandle(gridApp().moduleHandle()); }
    ~ModuleResources() { acDocManager->popResourceHandle(); }

private:
    ModuleResources(const ModuleResources&);
    ModuleResources& operator=(const ModuleResources&);
};
}  // namespace

bool editSettings(GridSettings& settings, double gridWidth, double gridHeight,
                  const CString& localeName)
{
    const ModuleResources resources;
    CSettingsDlg dialog(settings, gridWidth, gridHeight, localeName, settings.textStyleName);
    if (dialog.DoModal() != IDOK)
    {
        return false;
    }
    settings = dialog.settings();
    return true;
}
