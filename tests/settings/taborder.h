// Lists the controls of the settings dialog at which the Tab key stops, in order.
#pragma once

#include <vector>

#include "resources/resource.h"
#include "settings/gridsettings.h"

using TabStops = std::vector<int>;

// In a group of radio buttons Tab stops only at the checked one. It passes over disabled controls.
inline const TabStops stopsAtTheDefaults = {
    IDC_VERT_STEP, IDC_PICK_VERT_STEP, IDC_HOR_STEP, IDC_PICK_HOR_STEP,   IDC_COLOR,
    IDC_LINES,     IDC_ERASE_BOUNDARY, IDC_MODE_WCS, IDC_PICK_BASE_POINT, IDC_NEED_TEXT,
    IDOK,          IDCANCEL,
};
inline const TabStops stopsWithCrossesInTheView = {
    IDC_VERT_STEP,
    IDC_PICK_VERT_STEP,
    IDC_HOR_STEP,
    IDC_PICK_HOR_STEP,
    IDC_COLOR,
    IDC_CROSSES,
    IDC_CROSS_SIZE,
    IDC_PICK_CROSS_SIZE,
    IDC_ERASE_BOUNDARY,
    IDC_MODE_VIEW,
    IDC_PICK_BASE_POINT,
    IDC_NEED_TEXT,
    IDOK,
    IDCANCEL,
};
inline const TabStops stopsWithLabels = {
    IDC_VERT_STEP,  IDC_PICK_VERT_STEP, IDC_HOR_STEP,         IDC_PICK_HOR_STEP,   IDC_COLOR,
    IDC_LINES,      IDC_ERASE_BOUNDARY, IDC_MODE_WCS,         IDC_PICK_BASE_POINT, IDC_NEED_TEXT,
    IDC_TEXT_STYLE, IDC_TEXT_HEIGHT,    IDC_PICK_TEXT_HEIGHT, IDC_ACCURACY,        IDC_X_TOP,
    IDC_Y_TOP,      IDC_X_LEFT,         IDC_Y_LEFT,           IDC_X_RIGHT,         IDC_Y_RIGHT,
    IDC_X_BOTTOM,   IDC_Y_BOTTOM,       IDC_X_PREFIX,         IDC_Y_PREFIX,        IDOK,
    IDCANCEL,
};

struct TabOrder
{
    int LookType;
    int WCSBasePoint;
    int needText;
    const TabStops& stops;

    GridSettings settings() const
    {
        GridSettings settings;
        settings.LookType = LookType;
        settings.WCSBasePoint = WCSBasePoint;
        settings.needText = needText;
        return settings;
    }
};

inline const TabOrder tabOrders[] = {
    {0, 0, 0, stopsAtTheDefaults},
    {1, 1, 0, stopsWithCrossesInTheView},
    {0, 0, 1, stopsWithLabels},
};
