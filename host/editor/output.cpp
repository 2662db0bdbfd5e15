#include <cstdarg>
#include <cstdio>

#include "acedads.h"
#include "acutads.h"
#include "host/editor/editor.h"
#include "host/windows/format.h"
#include "host/windows/messagebox.h"
#include "host/windows/text.h"

int acutPrintf(const ACHAR* format, ...)
{
    if (format == nullptr)
    {
        return RTERROR;
    }
    std::va_list arguments;
    va_start(arguments, format);
    const std::wstring text = host::formatWide(format, arguments);
    va_end(arguments);
    if (host::Editor* editor = host::Editor::current())
    {
        editor->print(text);
        return RTNORM;
    }
    // A module may print before the command line exists and after it has gone.
    const std::string bytes = host::toUtf8(text);
    return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() ? RTNORM : RTERROR;
}

int acedAlert(const ACHAR* str)
{
    host::Editor* editor = host::Editor::current();
    if (editor == nullptr || str == nullptr)
    {
        return RTERROR;
    }
    // A person who works a dialog on the screen looks at the dialog and not at the console.
    const bool looksElsewhere = editor->interactive() && editor->dialogs().count() > 0;
    if (!looksElsewhere || !host::alertOverDialog(str))
    {
        editor->printLine(L"[alert] " + std::wstring(str));
    }
    return RTNORM;
}
