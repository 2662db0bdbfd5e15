#include "settings/labelflags.h"

#include "resources/resource.h"

namespace
{
const LabelFlag flags[] = {
    {IDC_X_TOP, &GridSettings::bXTopScribe},
    {IDC_Y_TOP, &GridSettings::bYTopScribe},
    {IDC_X_LEFT, &GridSettings::bXLeftScribe},
    {IDC_Y_LEFT, &GridSettings::bYLeftScribe},
    {IDC_X_RIGHT, &GridSettings::bXRightScribe},
    {IDC_Y_RIGHT, &GridSettings::bYRightScribe},
    {IDC_X_BOTTOM, &GridSettings::bXBottomScribe},
    {IDC_Y_BOTTOM, &GridSettings::bYBottomScribe},
    {0, 0},
};
}  // namespace

const LabelFlag* labelFlags()
{
    return flags;
}
