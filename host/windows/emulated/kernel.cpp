#include <algorithm>
#include <string>
#include <string_view>

#include "host/windows/modules.h"
#include "host/windows/text.h"
#include "windows.h"

namespace
{
thread_local DWORD s_lastError = 0;

int failed(DWORD error)
{
    s_lastError = error;
    return 0;
}

struct LocaleName
{
    LCID id;
    std::wstring_view name;
};

constexpr LocaleName localeNames[] = {
    // clang-format off
    {0x0404, L"zh-TW"},
    {0x0405, L"cs-CZ"},
    {0x0407, L"de-DE"},
    {0x0409, L"en-US"},
    {0x040C, L"fr-FR"},
    {0x040E, L"hu-HU"},
    {0x0410, L"it-IT"},
    {0x0411, L"ja-JP"},
    {0x0412, L"ko-KR"},
    {0x0415, L"pl-PL"},
    {0x0416, L"pt-BR"},
    {0x0419, L"ru-RU"},
    {0x0422, L"uk-UA"},
    {0x0804, L"zh-CN"},
    {0x0809, L"en-GB"},
    {0x0C0A, L"es-ES"},
    // clang-format on
};
}  // namespace

DWORD GetLastError()
{
    return s_lastError;
}

void SetLastError(DWORD error)
{
    s_lastError = error;
}

DWORD GetModuleFileNameW(HMODULE module, LPWSTR path, DWORD size)
{
    const std::wstring name = host::fromNativePath(host::modulePath(module).native());
    if (name.empty())
    {
        return failed(ERROR_MOD_NOT_FOUND);
    }
    if (size == 0)
    {
        return failed(ERROR_INSUFFICIENT_BUFFER);
    }
    const std::size_t length = name.copy(path, size - 1);
    path[length] = L'\0';
    s_lastError = length < name.size() ? ERROR_INSUFFICIENT_BUFFER : 0;
    return length < name.size() ? size : DWORD(length);
}

int LCIDToLocaleName(LCID locale, LPWSTR name, int size, DWORD)
{
    const auto found = std::ranges::find(localeNames, locale, &LocaleName::id);
    if (found == std::end(localeNames))
    {
        return failed(ERROR_INVALID_PARAMETER);
    }
    const int needed = int(found->name.size()) + 1;
    if (size == 0)
    {
        return needed;
    }
    if (size < needed)
    {
        return failed(ERROR_INSUFFICIENT_BUFFER);
    }
    name[found->name.copy(name, size)] = L'\0';
    return needed;
}
