#include "host/dialogs/bitmapbutton.h"

#include "host/dialogs/ownerdraw.h"
#include "host/dialogs/wnd.h"

namespace
{
HRSRC findBitmap(LPCWSTR name, HINSTANCE& module)
{
    module = AfxFindResourceHandle(name, RT_BITMAP);
    return FindResourceW(module, name, RT_BITMAP);
}
}  // namespace

BOOL CAdUiOwnerDrawButton::AutoLoad()
{
    host::windowOf(*this, "CAdUiOwnerDrawButton::AutoLoad");
    return OnAutoLoad();
}

BOOL CAdUiOwnerDrawButton::OnAutoLoad()
{
    return FALSE;
}

CAdUiBitmapButton::CAdUiBitmapButton(LPCWSTR bitmapName)
    : m_bitmapName(bitmapName), m_autoSize(TRUE), m_bitmap(nullptr), m_bitmapModule(nullptr)
{
}

BOOL CAdUiBitmapButton::GetAutoSizeToBitmap() const
{
    return m_autoSize;
}

void CAdUiBitmapButton::SetAutoSizeToBitmap(BOOL size)
{
    m_autoSize = size;
}

BOOL CAdUiBitmapButton::OnAutoLoad()
{
    if (m_bitmapName.IsEmpty())
    {
        CString text;
        GetWindowText(text);
        const int bar = text.Find(L'|');
        if (bar < 0)
        {
            return FALSE;
        }
        m_bitmapName = text.Left(bar);
        SetWindowText(text.Mid(bar + 1));
        host::setTooltip(m_hWnd, text.Mid(bar + 1));
    }
    const bool drawsItself = (GetWindowLongW(m_hWnd, GWL_STYLE) & BS_TYPEMASK) == BS_OWNERDRAW;
    m_bitmap = drawsItself ? findBitmap(m_bitmapName, m_bitmapModule) : nullptr;
    return m_bitmap != nullptr;
}

std::span<const std::byte> host::bitmapOfButton(HWND button)
{
    const auto* object = dynamic_cast<const CAdUiBitmapButton*>(objectOf(button));
    if (object == nullptr || object->bitmap() == nullptr)
    {
        return {};
    }
    const HINSTANCE module = object->bitmapModule();
    return {static_cast<const std::byte*>(LockResource(LoadResource(module, object->bitmap()))),
            SizeofResource(module, object->bitmap())};
}
