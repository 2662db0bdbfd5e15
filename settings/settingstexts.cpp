#include "settings/settingstexts.h"

#include "output/language.h"
#include "resources/resource.h"

namespace
{
// The odd wording ("height" for the width, "равена") stays, because the users know it.
const SettingsTexts englishTexts = {
    {
        {
            L"\nVertical step <%.4f>: ",
            L"Vertical step cant be equal to zero",
            L"Vertical step is not set",
        },
        L"Vertical step cant be bigger than height of the grid",
    },
    {
        {
            L"\nHorizontal step <%.4f>: ",
            L"Horizontal step cant be equal to zero",
            L"Horizontal step is not set",
        },
        L"Horizontal step cant be bigger than height of the grid",
    },
    {
        L"\nSize of a cross <%.4f>: ",
        L"Size of a cross cant be equal to zero",
        L"Size of the cross mark is not set",
    },
    {
        L"\nText height <%.4f>: ",
        L"Text height cant be equal to zero",
        L"Text height is not set",
    },
    L"\nBase point: ",
    L"<X prefix>",
    L"<Y prefix>",
};

const SettingsTexts russianTexts = {
    {
        {
            L"\nВертикальный шаг <%.4f>: ",
            L"Вертикальный шаг не может быть равен нулю",
            L"Шаг по вертикали не указан",
        },
        L"Вертикальный шаг не может быть больше высоты сетки",
    },
    {
        {
            L"\nГоризонтальный шаг <%.4f>: ",
            L"Горизонтальный шаг не может быть равен нулю",
            L"Шаг по горизонтали не указан",
        },
        L"Горизонтальный шаг не может быть больше высоты сетки",
    },
    {
        L"\nРазмер креста <%.4f>: ",
        L"Размер креста не может быть равен нулю",
        L"Не указан размер креста",
    },
    {
        L"\nВысота текста <%.4f>: ",
        L"Высота текста не может быть равена нулю",
        L"Не указана высота текста",
    },
    L"\nБазовая точка: ",
    L"<префикс X>",
    L"<префикс Y>",
};

const Caption captions[] = {
    {IDC_GRID_GROUP, L" Grid "},
    {IDC_VERT_STEP_LABEL, L"Vertical step:"},
    {IDC_PICK_VERT_STEP, L"PICKPT_IMG|Set a vertical step"},
    {IDC_HOR_STEP_LABEL, L"Horizontal step:"},
    {IDC_PICK_HOR_STEP, L"PICKPT_IMG|Set a horizontal step"},
    {IDC_COLOR_LABEL, L"Color:"},
    {IDC_APPEARANCE_GROUP, L" Appearance "},
    {IDC_LINES, L"Continuous line"},
    {IDC_CROSSES, L"Cross mark"},
    {IDC_PICK_CROSS_SIZE, L"PICKPT_IMG|Set a cross size"},
    {IDC_ERASE_BOUNDARY, L"Erase boundary"},
    {IDC_MODE_GROUP, L" Mode "},
    {IDC_MODE_WCS, L"WCS"},
    {IDC_MODE_VIEW, L"View"},
    {IDC_BASE_POINT_LABEL, L"Grid base point:"},
    {IDC_PICK_BASE_POINT, L"PICKPT_IMG|Set a base point"},
    {IDC_TEXT_GROUP, L"       Text "},
    {IDC_TEXT_STYLE_LABEL, L"Text style:"},
    {IDC_TEXT_HEIGHT_LABEL, L"Text height:"},
    {IDC_PICK_TEXT_HEIGHT, L"PICKPT_IMG|Set a text height"},
    {IDC_ACCURACY_LABEL, L"Accuracy:"},
    {IDCANCEL, L"Cancel"},
    {0, nullptr},
};
}  // namespace

const SettingsTexts& settingsTextsFor(const CString& localeName)
{
    return isRussian(localeName) ? russianTexts : englishTexts;
}

const Caption* englishCaptions()
{
    return captions;
}

const wchar_t* englishTitle()
{
    return L"Settings...";
}
