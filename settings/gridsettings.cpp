#include "settings/gridsettings.h"

GridSettings::GridSettings()
    : Color(12),
      VertStep(100.0),
      HorStep(100.0),
      LookType(0),
      crossSize(50.0),
      WCSBasePoint(0),
      delCont(0),
      heightText(1.0),
      iCountSigns(0),
      needText(0),
      bXTopScribe(1),
      bXBottomScribe(1),
      bXLeftScribe(1),
      bXRightScribe(1),
      bYTopScribe(1),
      bYBottomScribe(1),
      bYLeftScribe(1),
      bYRightScribe(1),
      textStyleName(L"Standard"),
      basePoint(0.0, 0.0, 0.0)
{
}
