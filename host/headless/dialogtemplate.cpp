#include "host/headless/dialogtemplate.h"

#include "host/headless/windowclasses.h"
#include "host/windows/emulated/resourcereader.h"

namespace host
{
namespace
{
// Rounds halves away from zero, as Windows does here.
LONG scaled(int units, int measure, int divisor)
{
    const int product = units * measure;
    return (product + (product < 0 ? -divisor : divisor) / 2) / divisor;
}

// Reads a place in dialog units and returns it in pixels. A character of the font is 6 pixels wide
// on average and 13 pixels high. A dialog unit is a quarter of that width or an eighth of that
// height.
RECT readPlace(ResourceReader& reader)
{
    const LONG left = scaled(reader.number<std::int16_t>(), 6, 4);
    const LONG top = scaled(reader.number<std::int16_t>(), 13, 8);
    const LONG width = scaled(reader.number<std::int16_t>(), 6, 4);
    const LONG height = scaled(reader.number<std::int16_t>(), 13, 8);
    return {left, top, left + width, top + height};
}

Window readControl(ResourceReader& reader)
{
    Window control;
    reader.align();
    reader.skip(8);  // help id, extended style
    control.style = reader.number<DWORD>() | WS_CHILD;
    control.place = readPlace(reader);
    control.id = reader.number<std::int32_t>();
    const ResourceReader::NameOrNumber className = reader.nameOrNumber();
    control.kind = controlClass(className.name, className.number);
    control.text = reader.nameOrNumber().name;
    reader.skip(reader.number<WORD>());  // data for the control, which our classes do not use
    return control;
}

void skipFont(ResourceReader& reader)
{
    reader.skip(6);  // size, weight, italic, character set
    reader.nameOrNumber();
}

bool isExtended(ResourceReader& reader)
{
    const auto version = reader.number<WORD>();
    return version == 1 && reader.number<WORD>() == 0xFFFF;
}

RECT clientArea(const RECT& place)
{
    return {0, 0, place.right - place.left, place.bottom - place.top};
}

// Reads the class of a dialog. Returns null for a class of the module's own, because the host does
// not let a module register one.
const WindowClass* readDialogClass(ResourceReader& reader)
{
    const ResourceReader::NameOrNumber named = reader.nameOrNumber();
    return named.name.empty() && named.number == 0 ? &dialogClass : nullptr;
}

// Reads the dialog itself and returns the number of its controls.
int readDialog(ResourceReader& reader, Window& dialog)
{
    reader.skip(8);  // help id, extended style
    dialog.style = reader.number<DWORD>();
    const auto count = reader.number<WORD>();
    dialog.place = clientArea(readPlace(reader));
    reader.nameOrNumber();  // menu
    dialog.kind = readDialogClass(reader);
    dialog.text = reader.nameOrNumber().name;
    if (dialog.has(DS_SETFONT))
    {
        skipFont(reader);
    }
    return count;
}
}  // namespace

std::optional<DialogTemplate> readDialogTemplate(std::span<const std::byte> bytes)
{
    ResourceReader reader(bytes);
    if (!isExtended(reader))
    {
        return std::nullopt;
    }
    DialogTemplate read;
    const int count = readDialog(reader, read.dialog);
    bool classesKnown = read.dialog.kind != nullptr;
    for (int i = 0; i < count && classesKnown && reader.good(); ++i)
    {
        read.controls.push_back(readControl(reader));
        classesKnown = read.controls.back().kind != nullptr;
    }
    return classesKnown && reader.good() ? std::optional(read) : std::nullopt;
}
}  // namespace host
