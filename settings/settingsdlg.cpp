#include "settings/settingsdlg.h"

bool editSettings(GridSettings&, double, double, const CString&)
{
    return false;
}
