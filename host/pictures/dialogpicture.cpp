#include "host/pictures/dialogpicture.h"

#include <string>
#include <vector>

#include "host/dialogs/bitmapbutton.h"
#include "host/dialogs/wnd.h"
#include "host/pictures/bitmap.h"
#include "host/pictures/canvas.h"
#include "host/colors/indexcolors.h"
#include "host/text/foldcase.h"

namespace host
{
namespace
{
const double scale = 2;
const int captionHeight = 30;
const int border = 1;

struct Control
{
    HWND window;
    Box box;  // the place on the canvas
    std::wstring className;
    std::wstring text;
    DWORD style;
    bool enabled;

    Color ink() const { return enabled ? black : dimmed; }
    bool checked() const { return SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED; }
};

Control describe(HWND window)
{
    wchar_t className[64] = L"";
    GetClassNameW(window, className, 64);
    RECT r{};
    GetWindowRect(window, &r);
    const Box box{double(r.left + border), double(r.top + border + captionHeight),
                  double(r.right - r.left), double(r.bottom - r.top)};
    return {window,
            box,
            className,
            windowText(window),
            DWORD(GetWindowLongW(window, GWL_STYLE)),
            IsWindowEnabled(window) != FALSE};
}

void etchedLine(Canvas& canvas, const Box& box, bool upright)
{
    if (upright)
    {
        canvas.fill({box.x, box.y, 1, box.height}, shadow);
        canvas.fill({box.x + 1, box.y, 1, box.height}, white);
        return;
    }
    canvas.fill({box.x, box.y, box.width, 1}, shadow);
    canvas.fill({box.x, box.y + 1, box.width, 1}, white);
}

void drawStatic(Canvas& canvas, const Control& control)
{
    const DWORD type = control.style & SS_TYPEMASK;
    if (type == SS_ETCHEDHORZ || type == SS_ETCHEDVERT)
    {
        etchedLine(canvas, control.box, type == SS_ETCHEDVERT);
        return;
    }
    canvas.text(control.box, control.box.x, control.box.middle(), control.text, control.ink());
}

void drawGroupBox(Canvas& canvas, const Control& control)
{
    const double top = control.box.y + canvas.textHeight() / 2;
    const Box outline{control.box.x, top, control.box.width,
                      control.box.y + control.box.height - top};
    canvas.frame({outline.x + 1, outline.y + 1, outline.width - 1, outline.height - 1}, white);
    canvas.frame({outline.x, outline.y, outline.width - 1, outline.height - 1}, shadow);
    const double indent = 9;
    const Box caption{control.box.x + indent, control.box.y, canvas.textWidth(control.text),
                      canvas.textHeight()};
    canvas.fill(caption, face);
    canvas.text(caption, caption.x, caption.middle(), control.text, control.ink());
}

const double markSize = 13;  // the size of a check box or radio button

void drawMarkText(Canvas& canvas, const Control& control)
{
    canvas.text(control.box, control.box.x + markSize + 4, control.box.middle(), control.text,
                control.ink());
}

void drawCheckBox(Canvas& canvas, const Control& control)
{
    const Box mark{control.box.x, control.box.middle() - markSize / 2, markSize, markSize};
    canvas.fill(mark, control.enabled ? white : face);
    canvas.frame(mark, control.enabled ? edge : shadow);
    if (control.checked())
    {
        const double x = mark.x;
        const double y = mark.y;
        canvas.line(x + 3, y + 6.5, x + 5.5, y + 9.5, control.ink(), 1.6);
        canvas.line(x + 5.2, y + 9.5, x + 10.5, y + 3, control.ink(), 1.6);
    }
    drawMarkText(canvas, control);
}

void drawRadio(Canvas& canvas, const Control& control)
{
    const double x = control.box.x + markSize / 2;
    const double y = control.box.middle();
    canvas.circle(x, y, 6, control.enabled ? white : face, true);
    canvas.circle(x, y, 6, control.enabled ? edge : shadow, false);
    if (control.checked())
    {
        canvas.circle(x, y, 3, control.ink(), true);
    }
    drawMarkText(canvas, control);
}

void drawPushButton(Canvas& canvas, const Control& control)
{
    const bool standard = (control.style & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    canvas.fill(control.box, {0.882, 0.882, 0.882});
    canvas.frame(control.box, standard ? accent : shadow);
    if (standard)
    {
        canvas.frame(control.box.inset(1), accent);
    }
    const double x = control.box.x + (control.box.width - canvas.textWidth(control.text)) / 2;
    canvas.text(control.box, x, control.box.middle(), control.text, control.ink());
}

void drawBitmapButton(Canvas& canvas, const Control& control)
{
    canvas.fill(control.box, {0.882, 0.882, 0.882});
    canvas.frame(control.box, shadow);
    const Image image = imageOfBitmap(bitmapOfButton(control.window));
    if (image)
    {
        canvas.image(control.box.inset(2), image.get());
    }
    if (!control.enabled)
    {
        canvas.veil(control.box.inset(1));
    }
}

void drawButton(Canvas& canvas, const Control& control)
{
    switch (control.style & BS_TYPEMASK)
    {
        case BS_GROUPBOX:
            return drawGroupBox(canvas, control);
        case BS_AUTOCHECKBOX:
            return drawCheckBox(canvas, control);
        case BS_AUTORADIOBUTTON:
            return drawRadio(canvas, control);
        case BS_OWNERDRAW:
            return drawBitmapButton(canvas, control);
        default:
            return drawPushButton(canvas, control);
    }
}

std::wstring bannerOf(HWND edit)
{
    wchar_t banner[128] = L"";
    SendMessageW(edit, EM_GETCUEBANNER, reinterpret_cast<WPARAM>(banner), 128);
    return banner;
}

void drawField(Canvas& canvas, const Control& control)
{
    canvas.fill(control.box, control.enabled ? white : face);
    canvas.frame(control.box, control.enabled ? edge : shadow);
}

void drawEdit(Canvas& canvas, const Control& control)
{
    drawField(canvas, control);
    const bool empty = control.text.empty();
    canvas.text(control.box.inset(2), control.box.x + 4, control.box.middle(),
                empty ? bannerOf(control.window) : control.text, empty ? dimmed : control.ink());
}

// Draws a closed combo box, which is as high as an edit. The control's own box includes the list
// that drops down.
void drawCombo(Canvas& canvas, Control control)
{
    const double closedHeight = 20;
    control.box.height = closedHeight;
    drawField(canvas, control);
    const double right = control.box.x + control.box.width - 10;
    canvas.triangleDown(right, control.box.middle(), 4, control.ink());
    double x = control.box.x + 4;
    const LRESULT selected = SendMessageW(control.window, CB_GETCURSEL, 0, 0);
    if ((control.style & CBS_OWNERDRAWFIXED) != 0 && selected != CB_ERR)
    {
        const Box swatch{x, control.box.y + 4, 14, closedHeight - 8};
        const LRESULT index = SendMessageW(control.window, CB_GETITEMDATA, WPARAM(selected), 0);
        canvas.fill(swatch, indexColor(int(index)));
        canvas.frame(swatch, black);
        x += swatch.width + 5;
    }
    canvas.text(control.box.inset(2), x, control.box.middle(), control.text, control.ink());
}

void drawControl(Canvas& canvas, const Control& control)
{
    if (equalNoCase(control.className, L"Button"))
    {
        drawButton(canvas, control);
    }
    else if (equalNoCase(control.className, L"Edit"))
    {
        drawEdit(canvas, control);
    }
    else if (equalNoCase(control.className, L"ComboBox"))
    {
        drawCombo(canvas, control);
    }
    else
    {
        drawStatic(canvas, control);
    }
}

void drawCaption(Canvas& canvas, double width, const std::wstring& caption)
{
    const Box bar{border, border, width, captionHeight};
    canvas.fill(bar, white);
    canvas.text(bar, bar.x + 9, bar.middle(), caption, black);
    const double x = bar.x + width - 20;
    const double y = bar.middle();
    canvas.line(x - 4, y - 4, x + 4, y + 4, black);
    canvas.line(x - 4, y + 4, x + 4, y - 4, black);
}
}  // namespace

Result<std::string> drawDialog(HWND dialog)
{
    const Control frame = describe(dialog);
    const int width = int(frame.box.width) + 2 * border;
    const int height = int(frame.box.height) + 2 * border + captionHeight;
    Canvas canvas(width, height, scale);
    canvas.fill({0, 0, double(width), double(height)}, face);
    drawCaption(canvas, frame.box.width, frame.text);
    // The first control is drawn last, because it lies on top of the others.
    std::vector<Control> controls;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        controls.insert(controls.begin(), describe(child));
    }
    for (const Control& control : controls)
    {
        drawControl(canvas, control);
    }
    canvas.frame({0, 0, double(width), double(height)}, edge);
    return canvas.png();
}
}  // namespace host
