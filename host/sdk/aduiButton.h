// Buttons with a picture.
#pragma once

#include "afxwin.h"

// A button that paints itself. Its control needs the style BS_OWNERDRAW.
class CAdUiOwnerDrawButton : public CButton
{
public:
    // Loads the content of the button. A dialog calls it after the base class's OnInitDialog; a
    // call before the object is attached to a window ends the run. Returns FALSE when there is
    // nothing to show.
    BOOL AutoLoad();

protected:
    virtual BOOL OnAutoLoad();  // does the loading; returns FALSE here
};

// A button that shows a bitmap of the module's resources.
class CAdUiBitmapButton : public CAdUiOwnerDrawButton
{
public:
    // Copies bitmapName. When it is null, AutoLoad takes the name from the button's text: the part
    // before the bar names the bitmap, and the part after it becomes the text and the tooltip. The
    // text must therefore be in its final language before AutoLoad.
    explicit CAdUiBitmapButton(LPCWSTR bitmapName = nullptr);

    // Return and set whether AutoLoad makes the button as large as its bitmap; the default is TRUE.
    // This host keeps every button as large as the template makes it.
    BOOL GetAutoSizeToBitmap() const;
    void SetAutoSizeToBitmap(BOOL size);

    // Return the bitmap and the module that holds it. Both are null before AutoLoad. Only the host
    // calls these functions.
    HRSRC bitmap() const { return m_bitmap; }
    HINSTANCE bitmapModule() const { return m_bitmapModule; }

protected:
    // Finds the bitmap in the resource chain, so the module's resources must be current. Returns
    // FALSE when there is no name or no such bitmap, or when the control is not owner-drawn.
    virtual BOOL OnAutoLoad() override;

private:
    CString m_bitmapName;
    BOOL m_autoSize;
    HRSRC m_bitmap;
    HINSTANCE m_bitmapModule;
};
