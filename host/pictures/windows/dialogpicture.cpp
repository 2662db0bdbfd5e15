#include "host/pictures/dialogpicture.h"

#include "host/png/windows/drawing.h"

namespace host
{
namespace
{
// What waits to be drawn is drawn before.
void paintAll(HWND dialog)
{
    RedrawWindow(dialog, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
    {
        DispatchMessageW(&message);
    }
}

// With its frame, as it stands on the screen.
HBITMAP photograph(HWND dialog)
{
    RECT frame;
    GetWindowRect(dialog, &frame);
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    const HDC screen = GetWindowDC(dialog);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, 0, 0, SRCCOPY);
    SelectObject(memory, before);
    DeleteDC(memory);
    ReleaseDC(dialog, screen);
    return bitmap;
}
}  // namespace

Result<std::string> drawDialog(HWND dialog)
{
    const Drawing drawing;
    paintAll(dialog);
    const HBITMAP bitmap = photograph(dialog);
    const std::unique_ptr<Gdiplus::Bitmap> image(Gdiplus::Bitmap::FromHBITMAP(bitmap, nullptr));
    DeleteObject(bitmap);
    return pngOf(*image);
}
}  // namespace host
