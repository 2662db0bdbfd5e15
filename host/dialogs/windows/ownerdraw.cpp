#include "host/dialogs/ownerdraw.h"

#include <string>

#include "commctrl.h"
#include "host/dialogs/bitmapbutton.h"
#include "host/colors/indexcolors.h"
#include "host/dialogs/windows/sizeonscreen.h"

namespace host
{
namespace
{
COLORREF ofIndex(int index)
{
    const Color color = indexColor(index);
    return RGB(255 * color.red + 0.5, 255 * color.green + 0.5, 255 * color.blue + 0.5);
}

void fill(HDC device, const RECT& box, COLORREF color)
{
    const HBRUSH brush = CreateSolidBrush(color);
    FillRect(device, &box, brush);
    DeleteObject(brush);
}

void drawSwatch(HDC device, const RECT& box, int index)
{
    fill(device, box, ofIndex(index));
    FrameRect(device, &box, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
}

std::wstring itemText(const DRAWITEMSTRUCT& item)
{
    const LRESULT length = SendMessageW(item.hwndItem, CB_GETLBTEXTLEN, item.itemID, 0);
    std::wstring text(length > 0 ? length : 0, L'\0');
    SendMessageW(item.hwndItem, CB_GETLBTEXT, item.itemID, reinterpret_cast<LPARAM>(text.data()));
    return text;
}

bool isIndex(ULONG_PTR cargo)
{
    return cargo >= 1 && cargo <= 255;
}

// Draws an item of the colour list: its name, and the colour if the item stands for one.
void drawColor(const DRAWITEMSTRUCT& item)
{
    const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
    const bool isGrey = (item.itemState & ODS_DISABLED) != 0;
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (item.itemID == UINT(-1))
    {
        return;
    }
    const LONG side = item.rcItem.bottom - item.rcItem.top - 4;
    RECT box = {item.rcItem.left + 2, item.rcItem.top + 2, item.rcItem.left + 2 + side,
                item.rcItem.top + 2 + side};
    if (isIndex(item.itemData))
    {
        drawSwatch(item.hDC, box, int(item.itemData));
    }
    const int ink = isGrey ? COLOR_GRAYTEXT : isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
    SetTextColor(item.hDC, GetSysColor(ink));
    SetBkMode(item.hDC, TRANSPARENT);
    RECT rest = {box.right + 4, item.rcItem.top, item.rcItem.right, item.rcItem.bottom};
    DrawTextW(item.hDC, itemText(item).c_str(), -1, &rest, DT_SINGLELINE | DT_VCENTER);
}

const void* pixelsOf(const BITMAPINFOHEADER& header)
{
    const DWORD colors = header.biClrUsed != 0    ? header.biClrUsed
                         : header.biBitCount <= 8 ? 1u << header.biBitCount
                                                  : 0;
    return reinterpret_cast<const BYTE*>(&header) + header.biSize + colors * sizeof(RGBQUAD);
}

// Draws a picture; its light grey becomes the face of the button.
void drawPicture(HDC device, const RECT& box, const BITMAPINFOHEADER& header)
{
    const SIZE size = {header.biWidth, header.biHeight};
    const SIZE shown = sizeOnScreen(size, GetDeviceCaps(device, LOGPIXELSY));
    const HDC memory = CreateCompatibleDC(device);
    const HBITMAP bitmap = CreateCompatibleBitmap(device, size.cx, size.cy);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    SetDIBitsToDevice(memory, 0, 0, size.cx, size.cy, 0, 0, 0, size.cy, pixelsOf(header),
                      reinterpret_cast<const BITMAPINFO*>(&header), DIB_RGB_COLORS);
    TransparentBlt(device, (box.left + box.right - shown.cx) / 2,
                   (box.top + box.bottom - shown.cy) / 2, shown.cx, shown.cy, memory, 0, 0, size.cx,
                   size.cy, RGB(192, 192, 192));
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
}

// Fades everything in the box into the face of the button.
void veil(HDC device, const RECT& box)
{
    const HDC memory = CreateCompatibleDC(device);
    const HBITMAP dot = CreateCompatibleBitmap(device, 1, 1);
    const HGDIOBJ before = SelectObject(memory, dot);
    SetPixel(memory, 0, 0, GetSysColor(COLOR_BTNFACE));
    AlphaBlend(device, box.left, box.top, box.right - box.left, box.bottom - box.top, memory, 0, 0,
               1, 1, {AC_SRC_OVER, 0, 160, 0});
    SelectObject(memory, before);
    DeleteObject(dot);
    DeleteDC(memory);
}

void drawPickButton(const DRAWITEMSTRUCT& item)
{
    const bool isPressed = (item.itemState & ODS_SELECTED) != 0;
    const bool isGrey = (item.itemState & ODS_DISABLED) != 0;
    RECT box = item.rcItem;
    DrawFrameControl(
        item.hDC, &box, DFC_BUTTON,
        DFCS_BUTTONPUSH | (isPressed ? DFCS_PUSHED : 0) | (isGrey ? DFCS_INACTIVE : 0));
    OffsetRect(&box, isPressed, isPressed);
    const std::span<const std::byte> bytes = bitmapOfButton(item.hwndItem);
    if (bytes.size() > sizeof(BITMAPINFOHEADER))
    {
        drawPicture(item.hDC, box, *reinterpret_cast<const BITMAPINFOHEADER*>(bytes.data()));
    }
    if (isGrey)
    {
        InflateRect(&box, -3, -3);
        veil(item.hDC, box);
    }
    if ((item.itemState & ODS_FOCUS) != 0)
    {
        InflateRect(&box, -3, -3);
        DrawFocusRect(item.hDC, &box);
    }
}

HWND tooltipsOf(HWND dialog)
{
    static const wchar_t property[] = L"arxhost.tooltips";
    if (const HANDLE known = GetPropW(dialog, property))
    {
        return static_cast<HWND>(known);
    }
    const HWND tooltips =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0,
                        0, dialog, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetPropW(dialog, property, tooltips);
    return tooltips;
}
}  // namespace

SIZE sizeOnScreen(SIZE picture, int dotsPerInch)
{
    const int usual = 96;
    return {MulDiv(picture.cx, dotsPerInch, usual), MulDiv(picture.cy, dotsPerInch, usual)};
}

INT_PTR answerDrawing(UINT message, LPARAM lParam)
{
    if (message != WM_DRAWITEM)
    {
        return FALSE;
    }
    const DRAWITEMSTRUCT& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    item.CtlType == ODT_COMBOBOX ? drawColor(item) : drawPickButton(item);
    return TRUE;
}

void setTooltip(HWND control, const wchar_t* text)
{
    const HWND dialog = GetParent(control);
    TTTOOLINFOW tool = {};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = dialog;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = const_cast<wchar_t*>(text);
    SendMessageW(tooltipsOf(dialog), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
}  // namespace host
