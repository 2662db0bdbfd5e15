// Buttons with a picture.
#pragma once

#include "afxwin.h"

// A button that paints itself. Its control needs the style BS_OWNERDRAW.
class CAdUiOwnerDrawButton : public CButton
{
public:
    // Loads what the button shows. It is called after the base's OnInitDialog; before the object
    // stands for a window it ends the run. FALSE when there is nothing to show.
    BOOL AutoLoad();

protected:
    virtual BOOL OnAutoLoad();  // does the loading; FALSE here
};

// A button with a bitmap of the module's resources.
class CAdUiBitmapButton : public CAdUiOwnerDrawButton
{
public:
    // bitmapName is copied. When it is null, AutoLoad takes the name from the button's text: the
    // part before the bar names the bitmap, the part after it becomes the text and the tooltip. So
    // the text has to be in its final language before AutoLoad.
    explicit CAdUiBitmapButton(LPCWSTR bitmapName = nullptr);

    // Whether AutoLoad makes the button as large as its bitmap; TRUE unless told otherwise. This
    // host leaves every button as large as the template makes it.
    BOOL GetAutoSizeToBitmap() const;
    void SetAutoSizeToBitmap(BOOL size);

    // The host's own; both null before AutoLoad.
    HRSRC bitmap() const { return m_bitmap; }
    HINSTANCE bitmapModule() const { return m_bitmapModule; }

protected:
    // Looks the bitmap up in the chain of resources, so the module's resources have to be current.
    // FALSE when there is no name, no such bitmap, or the control is not owner-drawn.
    virtual BOOL OnAutoLoad() override;

private:
    CString m_bitmapName;
    BOOL m_autoSize;
    HRSRC m_bitmap;
    HINSTANCE m_bitmapModule;
};
