// Buttons with a picture.
#pragma once

#include "afxwin.h"

// Its control has the style BS_OWNERDRAW.
class CAdUiOwnerDrawButton : public CButton
{
public:
    // Loads what the button shows; the window must stand. FALSE when it is not to be found.
    BOOL AutoLoad();

protected:
    virtual BOOL OnAutoLoad();
};

class CAdUiBitmapButton : public CAdUiOwnerDrawButton
{
public:
    // Without a name the button's text says it: what stands before the bar names the bitmap, what
    // stands after it becomes the text and so the tooltip.
    explicit CAdUiBitmapButton(LPCWSTR bitmapName = nullptr);

    // Whether the button is as large as its bitmap; it is unless told otherwise. This host leaves
    // every button as large as the template makes it.
    BOOL GetAutoSizeToBitmap() const;
    void SetAutoSizeToBitmap(BOOL size);

    // The host's own; both null before AutoLoad.
    HRSRC bitmap() const { return m_bitmap; }
    HINSTANCE bitmapModule() const { return m_bitmapModule; }

protected:
    virtual BOOL OnAutoLoad() override;

private:
    CString m_bitmapName;
    BOOL m_autoSize;
    HRSRC m_bitmap;
    HINSTANCE m_bitmapModule;
};
