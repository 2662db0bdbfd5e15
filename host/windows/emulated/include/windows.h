// The part of the Windows interface that a module uses. Only the Unicode forms exist.
#pragma once

#include <cstddef>
#include <cstdint>

#define WINAPI
#define APIENTRY
#define CALLBACK

#define TRUE 1
#define FALSE 0
#define MAX_PATH 260

typedef int BOOL;
typedef int INT;
typedef unsigned int UINT;
typedef std::uint8_t BYTE;
typedef std::uint16_t WORD;
typedef std::uint32_t DWORD;  // 32 bits there, where long has them too; not here
typedef std::int32_t LONG;
typedef DWORD LCID;
typedef std::intptr_t INT_PTR;
typedef std::intptr_t LPARAM;
typedef std::intptr_t LRESULT;
typedef std::uintptr_t DWORD_PTR;
typedef std::uintptr_t UINT_PTR;
typedef std::uintptr_t WPARAM;
typedef void* LPVOID;

typedef wchar_t WCHAR;
typedef wchar_t TCHAR;
typedef wchar_t* LPWSTR;
typedef wchar_t* LPTSTR;
typedef const wchar_t* LPCWSTR;
typedef const wchar_t* PCWSTR;
typedef const wchar_t* LPCTSTR;

typedef struct HINSTANCE__* HINSTANCE;  // the first byte of the module in memory
typedef HINSTANCE HMODULE;
typedef struct HWND__* HWND;

#define DLL_PROCESS_DETACH 0
#define DLL_PROCESS_ATTACH 1

#define LOCALE_NAME_MAX_LENGTH 85

#define MB_OK 0x0
#define MB_OKCANCEL 0x1
#define MB_YESNOCANCEL 0x3
#define MB_YESNO 0x4
#define MB_ICONERROR 0x10
#define MB_ICONQUESTION 0x20
#define MB_ICONWARNING 0x30
#define MB_ICONINFORMATION 0x40
#define MB_DEFBUTTON2 0x100

#define IDOK 1
#define IDCANCEL 2
#define IDYES 6
#define IDNO 7

#define ERROR_INVALID_PARAMETER 87
#define ERROR_INSUFFICIENT_BUFFER 122
#define ERROR_MOD_NOT_FOUND 126

extern "C"
{
    DWORD WINAPI GetLastError();
    void WINAPI SetLastError(DWORD error);

    // Writes the path of a module's file as it was named when the module was loaded, absolute and
    // with backslashes. A null handle stands for the program. Returns the length without the final
    // NUL, or 0 for an unknown handle. A path that does not fit is cut and terminated, and the
    // result is `size`.
    DWORD WINAPI GetModuleFileNameW(HMODULE module, LPWSTR path, DWORD size);

    // Writes the name of a locale ("ru-RU"). Returns its length including the final NUL, or 0 if
    // the locale is unknown or the buffer too small. Returns the required length if `size` is 0.
    int WINAPI LCIDToLocaleName(LCID locale, LPWSTR name, int size, DWORD flags);

    // Copies a text of a module's string table, cut to the buffer. Returns its length without the
    // final NUL, or 0 if the table lacks the text.
    int WINAPI LoadStringW(HINSTANCE module, UINT id, LPWSTR text, int size);

    // Asks the user [prints]. Returns the id of the button, or 0 if no user can be asked.
    int WINAPI MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type);
}
