// Drop-down lists that remember what was used last.
#pragma once

#include "afxwin.h"

// Most items that the list of recently used ones holds.
#define ACUI_MAX_COMBOBOX_MRU 6

// This class and the next are steps of the host's class tree. They add nothing that a module uses.
class CAdUiComboBox : public CComboBox
{
};

// See CAdUiComboBox.
class CAcUiComboBox : public CAdUiComboBox
{
};

// A list of the most recently used items, then optional ones, then the stock. Each item carries a
// number, its cargo; negative numbers are reserved. The control needs the styles CBS_DROPDOWNLIST,
// CBS_HASSTRINGS and CBS_OWNERDRAWFIXED, and must not have CBS_SORT. A call before the object
// stands for a window ends the run.
class CAcUiMRUComboBox : public CAcUiComboBox
{
public:
    // The list is empty until the object comes to stand for a window.
    CAcUiMRUComboBox();

    // Puts an item in front of the recent ones; the oldest of ACUI_MAX_COMBOBOX_MRU goes. An item
    // with this cargo that is in the list already stays where it is. The name is copied.
    // Returns the item's position. It selects nothing, so the caller does (SetCurSel).
    int AddItemToMRU(LPCWSTR name, int cargo);
    // Position of the item with this cargo; -1 when there is none.
    int FindCargo(int cargo) const;
    // Cargo of the selected item; -1 when nothing is selected.
    int GetCurrentItemCargo() const;

protected:
    virtual void PreSubclassWindow() override;  // forgets the items of a former window

private:
    int m_recentCount;
};

// A list of colours; the cargo is the colour index. It holds "ByLayer" (256), "ByBlock" (0) and the
// colours 1 to 7 by name from the start, and others as "Color nnn".
class CAcUiColorComboBox : public CAcUiMRUComboBox
{
public:
    // Makes sure that the list holds the colour: it joins the recent ones unless it is there
    // already. Returns its position, or -1 for an index below 0 or above 256. It selects nothing.
    int AddColorToMRU(int colorIndex);
    // Colour index of the selected item; -1 when nothing is selected.
    int GetCurrentItemColorIndex() const;

protected:
    virtual void PreSubclassWindow() override;  // adds the fixed colours
};
