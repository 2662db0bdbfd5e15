// Drop-down lists that remember the items used last.
#pragma once

#include "afxwin.h"

// The largest number of items in the list of recently used ones.
#define ACUI_MAX_COMBOBOX_MRU 6

// This class and the next are part of the host's class tree. They add nothing that a module uses.
class CAdUiComboBox : public CComboBox
{
};

// See CAdUiComboBox.
class CAcUiComboBox : public CAdUiComboBox
{
};

// A list of the most recently used items, followed by optional items and the standard ones. Each
// item has a number, its cargo; negative numbers are reserved. The control needs the styles
// CBS_DROPDOWNLIST, CBS_HASSTRINGS and CBS_OWNERDRAWFIXED and must not have CBS_SORT. A call before
// the object is attached to a window ends the run.
class CAcUiMRUComboBox : public CAcUiComboBox
{
public:
    // Creates an object whose list is empty until it is attached to a window.
    CAcUiMRUComboBox();

    // Puts an item in front of the recent ones; the oldest of ACUI_MAX_COMBOBOX_MRU is removed. An
    // item that has this cargo and is in the list already stays where it is. The name is copied.
    // Returns the item's position. The call selects no item; the caller does that with SetCurSel.
    int AddItemToMRU(LPCWSTR name, int cargo);
    // Returns the position of the item with this cargo, or -1 when the list has no such item.
    int FindCargo(int cargo) const;
    // Returns the cargo of the selected item, or -1 when no item is selected.
    int GetCurrentItemCargo() const;

protected:
    virtual void PreSubclassWindow() override;  // forgets the items of a former window

private:
    int m_recentCount;
};

// A list of colours; the cargo is the colour index. It always holds "ByLayer" (256), "ByBlock" (0)
// and the colours 1 to 7 by name. Other colours appear as "Color nnn".
class CAcUiColorComboBox : public CAcUiMRUComboBox
{
public:
    // Makes sure that the list holds the colour. The colour is added to the recent ones unless the
    // list has it already. Returns its position, or -1 for an index below 0 or above 256. The call
    // selects no item.
    int AddColorToMRU(int colorIndex);
    // Returns the colour index of the selected item, or -1 when no item is selected.
    int GetCurrentItemColorIndex() const;

protected:
    virtual void PreSubclassWindow() override;  // adds the fixed colours
};
