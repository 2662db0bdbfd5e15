#include "acui.h"

namespace
{
struct Fixed
{
    int cargo;
    const wchar_t* name;
};

const Fixed fixedColors[] = {
    // clang-format off
    {256, L"ByLayer"},
    {0, L"ByBlock"},
    {1, L"Red"},
    {2, L"Yellow"},
    {3, L"Green"},
    {4, L"Cyan"},
    {5, L"Blue"},
    {6, L"Magenta"},
    {7, L"White"},
    // clang-format on
};
}  // namespace

CAcUiMRUComboBox::CAcUiMRUComboBox() : m_recentCount(0) {}

int CAcUiMRUComboBox::AddItemToMRU(LPCWSTR name, int cargo)
{
    const int found = FindCargo(cargo);
    if (found != CB_ERR)
    {
        return found;
    }
    if (m_recentCount == ACUI_MAX_COMBOBOX_MRU)
    {
        DeleteString(UINT(--m_recentCount));
    }
    ++m_recentCount;
    const int index = InsertString(0, name);
    SetItemData(index, DWORD_PTR(cargo));
    return index;
}

int CAcUiMRUComboBox::FindCargo(int cargo) const
{
    for (int i = 0; i < GetCount(); ++i)
    {
        if (GetItemData(i) == DWORD_PTR(cargo))
        {
            return i;
        }
    }
    return CB_ERR;
}

int CAcUiMRUComboBox::GetCurrentItemCargo() const
{
    const int selected = GetCurSel();
    return selected != CB_ERR ? int(GetItemData(selected)) : CB_ERR;
}

// Forgets the recent items, because the list of a new window is empty.
void CAcUiMRUComboBox::PreSubclassWindow()
{
    m_recentCount = 0;
}

void CAcUiColorComboBox::PreSubclassWindow()
{
    CAcUiMRUComboBox::PreSubclassWindow();
    for (const Fixed& color : fixedColors)
    {
        SetItemData(AddString(color.name), DWORD_PTR(color.cargo));
    }
}

int CAcUiColorComboBox::AddColorToMRU(int colorIndex)
{
    if (colorIndex < 0 || colorIndex > 256)
    {
        return CB_ERR;
    }
    CString name;
    name.Format(L"Color %d", colorIndex);
    return AddItemToMRU(name, colorIndex);
}

int CAcUiColorComboBox::GetCurrentItemColorIndex() const
{
    return GetCurrentItemCargo();
}
