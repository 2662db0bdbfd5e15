#include "host/pictures/dialogpicture.h"

#include <memory>
#include <type_traits>

#include "host/png/windows/drawing.h"

namespace host
{
namespace
{
// Makes the system draw everything that waits to be drawn.
void paintAll(HWND dialog)
{
    RedrawWindow(dialog, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
    {
        DispatchMessageW(&message);
    }
}

// Deletes an object with which the system draws, on every way out.
struct Deleting
{
    void operator()(HDC context) const { DeleteDC(context); }
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using Memory = std::unique_ptr<std::remove_pointer_t<HDC>, Deleting>;
using Bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, Deleting>;

struct Screen
{
    explicit Screen(HWND window) : window(window), context(GetWindowDC(window)) {}
    ~Screen() { ReleaseDC(window, context); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    HWND window;
    HDC context;
};

// Returns the dialog with its frame, as it stands on the screen.
Bitmap photograph(HWND dialog)
{
    RECT frame;
    GetWindowRect(dialog, &frame);
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    const Screen screen(dialog);
    const Memory memory(CreateCompatibleDC(screen.context));
    Bitmap bitmap(CreateCompatibleBitmap(screen.context, width, height));
    const HGDIOBJ before = SelectObject(memory.get(), bitmap.get());
    BitBlt(memory.get(), 0, 0, width, height, screen.context, 0, 0, SRCCOPY);
    SelectObject(memory.get(), before);  // a selected bitmap cannot be deleted
    return bitmap;
}
}  // namespace

Result<std::string> drawDialog(HWND dialog)
{
    const Drawing drawing;
    paintAll(dialog);
    const Bitmap bitmap = photograph(dialog);
    const std::unique_ptr<Gdiplus::Bitmap> image(
        Gdiplus::Bitmap::FromHBITMAP(bitmap.get(), nullptr));
    return pngOf(*image);
}
}  // namespace host
