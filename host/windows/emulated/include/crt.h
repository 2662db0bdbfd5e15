// The wide calls of the C runtime as a module made for Windows knows them.
//
// A stream of _wfopen is read with fgetwc, written with fwprintf and closed with fclose.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <cwchar>

extern "C"
{
    // Opens a file as text ("r", "w", "a") or as bytes ("rb", "wb", "ab"). Backslashes separate
    // folders. Text reading converts CR LF to one LF and ends at Ctrl-Z. Text writing converts LF
    // to CR LF.
    //
    // "r, ccs=UTF-8", "r, ccs=UTF-16LE" and "r, ccs=UNICODE" decode the file. A byte-order mark
    // decides the encoding; without a mark it is UTF-8 for the first mode and UTF-16LE for the
    // others. Each byte that is not UTF-8 becomes U+FFFD.
    //
    // Returns the stream, which the caller closes. Returns nullptr with errno if the file cannot be
    // opened. A file that begins with a UTF-16BE mark and any other mode give EINVAL.
    FILE* _wfopen(const wchar_t* path, const wchar_t* mode);

    // Reads `[blanks and tabs] [sign] [digits] [.digits] [d|D|e|E [sign] digits]` up to the first
    // character that does not fit. The decimal point is a point in every locale. Returns 0 for a
    // text without a number and +-HUGE_VAL for a number out of range.
    double _wtof(const wchar_t* text);
    // Reads `[white space] [sign] [digits]`. Returns the nearest int for a number out of range.
    int _wtoi(const wchar_t* text);

    // Compare unit by unit. A-Z count as a-z, and no other letters are folded: `_` comes before the
    // letters, and Cyrillic capitals differ from small letters. Return a negative number, 0 or a
    // positive number.
    int _wcsicmp(const wchar_t* left, const wchar_t* right);
    int _wcsnicmp(const wchar_t* left, const wchar_t* right, std::size_t count);

    // The implementations of the macros below.
    wint_t crtFgetwc(FILE* stream);
    int crtFwprintf(FILE* stream, const wchar_t* format, ...);
    int crtWctomb(char* bytes, wchar_t unit);
}

// This platform's C library has functions of these names with other rules: %s takes a narrow text
// there, a wide call fails on the first character outside the locale, and lines end in LF. Macros
// therefore redirect the module's calls to our functions. The streams are still those of the C
// library, so fclose needs no macro. Function-like macros also take precedence over the C library's
// inline forms. A use that a macro misses does not compile (std::fwprintf). The macros come after
// the standard headers, because those undefine macros of these names.
#define fgetwc(stream) crtFgetwc(stream)
#define fwprintf(...) crtFwprintf(__VA_ARGS__)
#define wctomb(bytes, unit) crtWctomb(bytes, unit)
