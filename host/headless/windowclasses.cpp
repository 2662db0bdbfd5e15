#include "host/headless/windowclasses.h"

#include <algorithm>
#include <iterator>

#include "host/headless/messages.h"
#include "host/text/foldcase.h"

namespace host
{
namespace
{
// List boxes and scroll bars answer as a text does, because no dialog uses their messages yet.
const WindowClass controlClasses[] = {
    // clang-format off
    {0x80, L"Button", buttonMessage},
    {0x81, L"Edit", editMessage},
    {0x82, L"Static", anyMessage},
    {0x83, L"ListBox", anyMessage},
    {0x84, L"ScrollBar", anyMessage},
    {0x85, L"ComboBox", comboBoxMessage},
    // clang-format on
};
}  // namespace

const WindowClass dialogClass = {0, L"#32770", dialogMessage};

const WindowClass* controlClass(std::wstring_view name, WORD ordinal)
{
    const auto isIt = [&](const WindowClass& known)
    { return known.ordinal == ordinal || equalNoCase(known.name, name); };
    const auto* const found = std::ranges::find_if(controlClasses, isIt);
    return found != std::end(controlClasses) ? found : nullptr;
}

bool isButton(const Window& window, DWORD type)
{
    return window.kind->answer == buttonMessage && (window.style & BS_TYPEMASK) == type;
}
}  // namespace host
