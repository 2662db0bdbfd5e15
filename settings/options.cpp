#include "settings/options.h"

#include <cstddef>

#include "resources/resource.h"

namespace
{
const IntOption intTable[] = {
    {L"Color", &GridSettings::Color, 12, IDC_COLOR, listControl, false},
    {L"LookType", &GridSettings::LookType, 0, IDC_CROSSES, checkedAtOne, false},
    {L"WCSBasePoint", &GridSettings::WCSBasePoint, 0, IDC_MODE_VIEW, checkedNotZero, false},
    {L"delCont", &GridSettings::delCont, 0, IDC_ERASE_BOUNDARY, checkedAtOne, false},
    {L"iCountSigns", &GridSettings::iCountSigns, 0, IDC_ACCURACY, listControl, true},
    {L"needText", &GridSettings::needText, 0, IDC_NEED_TEXT, checkedNotZero, false},
    {L"bXTopScribe", &GridSettings::bXTopScribe, 1, IDC_X_TOP, checkedNotZero, true},
    {L"bXBottomScribe", &GridSettings::bXBottomScribe, 1, IDC_X_BOTTOM, checkedNotZero, true},
    {L"bXLeftScribe", &GridSettings::bXLeftScribe, 1, IDC_X_LEFT, checkedNotZero, true},
    {L"bXRightScribe", &GridSettings::bXRightScribe, 1, IDC_X_RIGHT, checkedNotZero, true},
    {L"bYTopScribe", &GridSettings::bYTopScribe, 1, IDC_Y_TOP, checkedNotZero, true},
    {L"bYBottomScribe", &GridSettings::bYBottomScribe, 1, IDC_Y_BOTTOM, checkedNotZero, true},
    {L"bYLeftScribe", &GridSettings::bYLeftScribe, 1, IDC_Y_LEFT, checkedNotZero, true},
    {L"bYRightScribe", &GridSettings::bYRightScribe, 1, IDC_Y_RIGHT, checkedNotZero, true},
};

const RealOption realTable[] = {
    {L"VertStep", &GridSettings::VertStep, 100.0, IDC_VERT_STEP, editControl, false},
    {L"HorStep", &GridSettings::HorStep, 100.0, IDC_HOR_STEP, editControl, false},
    {L"crossSize", &GridSettings::crossSize, 50.0, IDC_CROSS_SIZE, editControl, false},
    {L"heightText", &GridSettings::heightText, 1.0, IDC_TEXT_HEIGHT, editControl, true},
};

const TextOption textTable[] = {
    {L"textXScribe", &GridSettings::textXScribe, L"", IDC_X_PREFIX, editControl, true},
    {L"textYScribe", &GridSettings::textYScribe, L"", IDC_Y_PREFIX, editControl, true},
};

template <class Row, std::size_t count>
Rows<Row> rowsOf(const Row (&table)[count])
{
    const Rows<Row> rows = {table, table + count};
    return rows;
}
}  // namespace

Rows<IntOption> intOptions()
{
    return rowsOf(intTable);
}

Rows<RealOption> realOptions()
{
    return rowsOf(realTable);
}

Rows<TextOption> textOptions()
{
    return rowsOf(textTable);
}
