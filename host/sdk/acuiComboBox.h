// Drop-down lists that remember what was used last.
#pragma once

#include "afxwin.h"

#define ACUI_MAX_COMBOBOX_MRU 6

class CAdUiComboBox : public CComboBox
{
};

class CAcUiComboBox : public CAdUiComboBox
{
};

// A list of most recently used items, then optional ones, then the stock. Each item carries a
// number, its cargo; a negative one is reserved. Its control has the styles CBS_DROPDOWNLIST,
// CBS_HASSTRINGS and CBS_OWNERDRAWFIXED, not CBS_SORT.
class CAcUiMRUComboBox : public CAcUiComboBox
{
public:
    CAcUiMRUComboBox();

    // Puts an item at the front of the list of recent ones, the oldest of six going; an item with
    // this cargo that is there already stays where it is. Its position; nothing is selected.
    int AddItemToMRU(LPCWSTR name, int cargo);
    // Position of the item with this cargo, -1 for none.
    int FindCargo(int cargo) const;
    // Cargo of the selected item, -1 for none.
    int GetCurrentItemCargo() const;

protected:
    virtual void PreSubclassWindow() override;

private:
    int m_recentCount;
};

// Colours: "ByLayer" (256) and "ByBlock" (0), the colours 1 to 7 by name, others as "Color nnn".
class CAcUiColorComboBox : public CAcUiMRUComboBox
{
public:
    // Position of the colour, which joins the recent ones if it is none of the fixed; -1 for what
    // is no colour index. Nothing is selected.
    int AddColorToMRU(int colorIndex);
    // -1 when nothing is selected.
    int GetCurrentItemColorIndex() const;

protected:
    virtual void PreSubclassWindow() override;  // adds the fixed colours
};
